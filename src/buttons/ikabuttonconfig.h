#pragma once

#include "kabuttonconfigrecord.h"
#include "karvex_export.h"

#include <QObject>
#include <QString>

// What every configuration-driven button, badge, tab item and dual-button
// cell asks its configuration for. A configuration holds the fields that
// decide the look, fills a fresh appearance record on request and keeps no
// copy of the last one. It never touches a widget: the widget connects
// configChanged() to its own refresh, fills a record and applies it.
//
// The configuration also holds the button's icon paths, so that the two
// "on" paths follow their plain ones the same way for every button:
// setRightIcon() sets the anchor icon of both states, a later
// setRightIconOn() only that of the checked state, and a setRightIcon()
// after setRightIconOn() overwrites the checked one again.
class KARVEX_EXPORT IKaButtonConfig : public QObject {
    Q_OBJECT
public:
    using Config = KaButtonConfigRecord;

    explicit IKaButtonConfig(QObject* parent = nullptr);
    ~IKaButtonConfig() override;

    // Writes the record for the current fields into `out`.
    virtual void fillConfig(Config& out) const = 0;
    // Whether the leading (main) icon is shown.
    virtual void setHasLeftIcon(bool hasIcon) = 0;
    // Whether the trailing (anchor) icon is shown.
    virtual void setHasRightIcon(bool hasIcon) = 0;
    // An integer fillConfig() copies into acceleratorType; ignored here.
    virtual void setCustomValue(int value);

    // Icon paths. Each setter does nothing for the current path; otherwise it
    // stores the path, and the two plain ones tell setHasLeftIcon() or
    // setHasRightIcon() whether the path is non-empty.
    void setLeftIcon(const QString& path);
    void setLeftIconOn(const QString& path);
    void setRightIcon(const QString& path);
    void setRightIconOn(const QString& path);
    QString leftIcon() const { return m_leftIcon; }
    QString leftIconOn() const { return m_leftIconOn; }
    QString rightIcon() const { return m_rightIcon; }
    QString rightIconOn() const { return m_rightIconOn; }

    // What the button hands to its base button's icon setters.
    QString svgIcon() const { return m_leftIcon; }
    QString svgIconChecked() const { return m_leftIconOn; }
    QString anchorSvgOff() const { return m_anchorSvgOff; }
    QString anchorSvgOn() const { return m_anchorSvgOn; }

Q_SIGNALS:
    // The record fillConfig() writes may differ now: fill and apply again.
    void configChanged();
    void iconsChanged();

protected:
    // Setter plumbing: stores `value` in `field` and, on a change, sends
    // `changed(value)` (when given) and then configChanged(). Returns whether
    // the field changed.
    template <typename T> bool store(T& field, const T& value) {
        if (field == value)
            return false;
        field = value;
        Q_EMIT configChanged();
        return true;
    }
    template <typename Owner, typename T, typename Arg>
    bool store(T& field, const T& value, void (Owner::*changed)(Arg)) {
        if (field == value)
            return false;
        field = value;
        Q_EMIT(static_cast<Owner*>(this)->*changed)(value);
        Q_EMIT configChanged();
        return true;
    }

private:
    QString m_leftIcon;
    QString m_leftIconOn;
    QString m_rightIcon;
    QString m_rightIconOn;
    QString m_anchorSvgOff;
    QString m_anchorSvgOn;
};
