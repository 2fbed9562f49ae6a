#pragma once

#include "brisel_export.h"

#include <QColor>
#include <QMetaType>
#include <QSharedDataPointer>
#include <QString>
#include <QStyle>

class QStyleOption;
class BzColorSetData;

// A named colour set: one colour for each interaction state of a control.
// Value type, implicitly shared: a widget's copy of a theme's set is one
// pointer, so resolved sets cost nothing per widget.
class BRISEL_EXPORT BzColorSet {
public:
    // Order matters: it is the order of the six colours in theme files.
    enum State : int { Normal = 0, Hovered, Pressed, Disabled, Focused, Checked, StateCount };

    BzColorSet();
    explicit BzColorSet(const QString& name, const QColor& all = QColor());
    BzColorSet(const QString& name, const QColor& normal, const QColor& hovered, const QColor& pressed,
               const QColor& disabled, const QColor& focused, const QColor& checked);
    BzColorSet(const BzColorSet& other);
    BzColorSet(BzColorSet&& other) noexcept;
    BzColorSet& operator=(const BzColorSet& other);
    BzColorSet& operator=(BzColorSet&& other) noexcept;
    ~BzColorSet();

    QString name() const;
    void setName(const QString& name);
    bool isValid() const;

    QColor color(State state) const;
    void setColor(State state, const QColor& color);

    QColor normal() const { return color(Normal); }
    QColor hovered() const { return color(Hovered); }
    QColor pressed() const { return color(Pressed); }
    QColor disabled() const { return color(Disabled); }
    QColor focused() const { return color(Focused); }
    QColor checked() const { return color(Checked); }

    // The state whose colour a control in `state` shows: not enabled gives
    // Disabled, sunken Pressed, mouse over Hovered, focus Focused (only when
    // the focused colour differs from normal), selected or on Checked,
    // otherwise Normal.
    State stateFor(QStyle::State state) const;
    QColor colorFor(QStyle::State state) const { return color(stateFor(state)); }
    QColor colorFor(const QStyleOption& option) const;

    static QString stateName(State state);
    // "normal", "hovered", ... ; returns StateCount for an unknown name.
    static State stateFromName(const QString& name);

    bool operator==(const BzColorSet& other) const;
    bool operator!=(const BzColorSet& other) const { return !(*this == other); }

private:
    // Null for a default-constructed set: no name, invalid colours.
    QSharedDataPointer<BzColorSetData> d;
};

Q_DECLARE_METATYPE(BzColorSet)
BRISEL_EXPORT QDebug operator<<(QDebug debug, const BzColorSet& set);
