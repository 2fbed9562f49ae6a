#pragma once

#include "kabuttonconfigrecord.h"
#include "karvex_export.h"

#include <QObject>
#include <QString>

class IKaButton;

// What every configuration-driven button, badge, tab item and dual-button
// cell asks its configuration for. A configuration holds the fields that
// decide the look, fills a fresh appearance record on request and keeps no
// copy of the last one. It never touches a widget's look: every change is
// sent as configChanged() and handed to the owning button, which fills a
// record and applies it.
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
    QString anchorSvgOff() const { return m_rightIcon; }
    QString anchorSvgOn() const { return m_anchorOnIsRightIconOn ? m_rightIconOn : m_rightIcon; }

Q_SIGNALS:
    // The record fillConfig() writes may differ now: fill and apply again.
    void configChanged();
    void iconsChanged();

protected:
    // Sends configChanged() and has the owning button refresh. Subclasses
    // call this after changing a field.
    void notifyConfigChanged();

    // Setter plumbing: stores `value` in `field` and, on a change, sends
    // `changed(value)` (when given) and then configChanged(). Returns whether
    // the field changed.
    template <typename T> bool store(T& field, const T& value) {
        if (field == value)
            return false;
        field = value;
        notifyConfigChanged();
        return true;
    }
    template <typename Owner, typename T, typename Arg>
    bool store(T& field, const T& value, void (Owner::*changed)(Arg)) {
        if (field == value)
            return false;
        field = value;
        Q_EMIT(static_cast<Owner*>(this)->*changed)(value);
        notifyConfigChanged();
        return true;
    }

private:
    friend class IKaButton;
    void notifyIconsChanged();

    // The button built with this configuration (also its Qt parent).
    IKaButton* m_owner = nullptr;
    QString m_leftIcon;
    QString m_leftIconOn;
    QString m_rightIcon;
    QString m_rightIconOn;
    // Which of the two right icons was set last: that one shows while on.
    bool m_anchorOnIsRightIconOn = false;
};
