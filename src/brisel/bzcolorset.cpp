#include "bzcolorset.h"

#include <QDebug>
#include <QStyleOption>

namespace {
const char* const kStateNames[BzColorSet::StateCount] = {"normal",   "hovered", "pressed",
                                                         "disabled", "focused", "checked"};
}

BzColorSet::BzColorSet(const QString& name, const QColor& all)
    : m_name(name) {
    m_colors.fill(all);
}

BzColorSet::BzColorSet(const QString& name, const QColor& normal, const QColor& hovered,
                       const QColor& pressed, const QColor& disabled, const QColor& focused,
                       const QColor& checked)
    : m_name(name)
    , m_colors{{normal, hovered, pressed, disabled, focused, checked}} {}

QColor BzColorSet::color(State state) const {
    if (state < Normal || state >= StateCount)
        return m_colors[Normal];
    return m_colors[state];
}

void BzColorSet::setColor(State state, const QColor& color) {
    if (state < Normal || state >= StateCount) {
        qWarning("BzColorSet::setColor: state %d is out of range", int(state));
        return;
    }
    m_colors[state] = color;
}

BzColorSet::State BzColorSet::stateFor(QStyle::State state) const {
    if (!(state & QStyle::State_Enabled))
        return Disabled;
    if (state & QStyle::State_Sunken)
        return Pressed;
    if (state & QStyle::State_MouseOver)
        return Hovered;
    if ((state & QStyle::State_HasFocus) && m_colors[Focused] != m_colors[Normal])
        return Focused;
    if (state & (QStyle::State_Selected | QStyle::State_On))
        return Checked;
    return Normal;
}

QColor BzColorSet::colorFor(const QStyleOption& option) const {
    return colorFor(option.state);
}

QString BzColorSet::stateName(State state) {
    if (state < Normal || state >= StateCount)
        return QString();
    return QLatin1String(kStateNames[state]);
}

BzColorSet::State BzColorSet::stateFromName(const QString& name) {
    for (int i = 0; i < StateCount; ++i) {
        if (name == QLatin1String(kStateNames[i]))
            return State(i);
    }
    return StateCount;
}

bool BzColorSet::operator==(const BzColorSet& other) const {
    return m_name == other.m_name && m_colors == other.m_colors;
}

QDebug operator<<(QDebug debug, const BzColorSet& set) {
    QDebugStateSaver saver(debug);
    debug.nospace() << "BzColorSet(" << set.name();
    for (int i = 0; i < BzColorSet::StateCount; ++i)
        debug << ", " << set.color(BzColorSet::State(i)).name(QColor::HexArgb);
    debug << ')';
    return debug;
}
