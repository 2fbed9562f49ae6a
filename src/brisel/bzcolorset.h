#pragma once

#include "brisel_export.h"

#include <QColor>
#include <QMetaType>
#include <QString>
#include <QStyle>

#include <array>

class QStyleOption;

// A named colour set: one colour for each interaction state of a control.
// Value type, cheap to copy; resolved once per theme or configuration change.
class BRISEL_EXPORT BzColorSet {
public:
    // Order matters: it is the order of the six colours in theme files.
    enum State : int { Normal = 0, Hovered, Pressed, Disabled, Focused, Checked, StateCount };

    BzColorSet() = default;
    explicit BzColorSet(const QString& name, const QColor& all = QColor());
    BzColorSet(const QString& name, const QColor& normal, const QColor& hovered, const QColor& pressed,
               const QColor& disabled, const QColor& focused, const QColor& checked);

    QString name() const { return m_name; }
    void setName(const QString& name) { m_name = name; }
    bool isValid() const { return !m_name.isEmpty(); }

    QColor color(State state) const;
    void setColor(State state, const QColor& color);

    QColor normal() const { return m_colors[Normal]; }
    QColor hovered() const { return m_colors[Hovered]; }
    QColor pressed() const { return m_colors[Pressed]; }
    QColor disabled() const { return m_colors[Disabled]; }
    QColor focused() const { return m_colors[Focused]; }
    QColor checked() const { return m_colors[Checked]; }

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
    QString m_name;
    std::array<QColor, StateCount> m_colors;
};

Q_DECLARE_METATYPE(BzColorSet)
BRISEL_EXPORT QDebug operator<<(QDebug debug, const BzColorSet& set);
