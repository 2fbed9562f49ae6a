#include "bzcolorset.h"

#include <QDebug>
#include <QStyleOption>

#include <array>

class BzColorSetData : public QSharedData {
public:
    QString name;
    std::array<QColor, BzColorSet::StateCount> colors;
};

namespace {
const char* const kStateNames[BzColorSet::StateCount] = {"normal",   "hovered", "pressed",
                                                         "disabled", "focused", "checked"};
}

BzColorSet::BzColorSet() = default;

BzColorSet::BzColorSet(const QString& name, const QColor& all)
    : d(new BzColorSetData) {
    d->name = name;
    d->colors.fill(all);
}

BzColorSet::BzColorSet(const QString& name, const QColor& normal, const QColor& hovered,
                       const QColor& pressed, const QColor& disabled, const QColor& focused,
                       const QColor& checked)
    : d(new BzColorSetData) {
    d->name = name;
    d->colors = {{normal, hovered, pressed, disabled, focused, checked}};
}

BzColorSet::BzColorSet(const BzColorSet& other) = default;
BzColorSet::BzColorSet(BzColorSet&& other) noexcept = default;
BzColorSet& BzColorSet::operator=(const BzColorSet& other) = default;
BzColorSet& BzColorSet::operator=(BzColorSet&& other) noexcept = default;
BzColorSet::~BzColorSet() = default;

QString BzColorSet::name() const {
    return d ? d->name : QString();
}

void BzColorSet::setName(const QString& name) {
    if (!d)
        d = new BzColorSetData;
    d->name = name;
}

bool BzColorSet::isValid() const {
    return d && !d->name.isEmpty();
}

QColor BzColorSet::color(State state) const {
    if (!d)
        return QColor();
    if (state < Normal || state >= StateCount)
        return d->colors[Normal];
    return d->colors[state];
}

void BzColorSet::setColor(State state, const QColor& color) {
    if (state < Normal || state >= StateCount) {
        qWarning("BzColorSet::setColor: state %d is out of range", int(state));
        return;
    }
    if (!d)
        d = new BzColorSetData;
    d->colors[state] = color;
}

BzColorSet::State BzColorSet::stateFor(QStyle::State state) const {
    if (!(state & QStyle::State_Enabled))
        return Disabled;
    if (state & QStyle::State_Sunken)
        return Pressed;
    if (state & QStyle::State_MouseOver)
        return Hovered;
    if ((state & QStyle::State_HasFocus) && d && d->colors[Focused] != d->colors[Normal])
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
    if (d == other.d)
        return true;
    if (name() != other.name())
        return false;
    for (int i = 0; i < StateCount; ++i) {
        if (color(State(i)) != other.color(State(i)))
            return false;
    }
    return true;
}

QDebug operator<<(QDebug debug, const BzColorSet& set) {
    QDebugStateSaver saver(debug);
    debug.nospace() << "BzColorSet(" << set.name();
    for (int i = 0; i < BzColorSet::StateCount; ++i)
        debug << ", " << set.color(BzColorSet::State(i)).name(QColor::HexArgb);
    debug << ')';
    return debug;
}
