#include "ikadualcellconfig.h"

#include "kabuttonconfig.h"
#include "kasizetable_p.h"

namespace {

// The standard style (and state) a colour scheme paints with; -1 for none.
int styleOfScheme(KaDualButtonCode::ColorScheme scheme, KaButtonEnum::State& state) {
    switch (scheme) {
    case KaDualButtonCode::Ghost:
        return KaButtonEnum::Ghost;
    case KaDualButtonCode::Primary:
        return KaButtonEnum::Primary;
    case KaDualButtonCode::Secondary:
        return KaButtonEnum::Secondary;
    case KaDualButtonCode::SecondaryActive:
        state = KaButtonEnum::Active;
        return KaButtonEnum::Secondary;
    case KaDualButtonCode::Inverted:
        return KaButtonEnum::Inverted;
    case KaDualButtonCode::DarkThemeSecondary:
        return state == KaButtonEnum::Active ? KaButtonEnum::DarkThemeSecondaryActive
                                             : KaButtonEnum::DarkThemeSecondary;
    case KaDualButtonCode::Green:
        return KaButtonEnum::Join;
    case KaDualButtonCode::NoColorScheme:
        break;
    }
    return -1;
}

} // namespace

bool IKaDualCellConfig::Placement::operator==(const Placement& other) const {
    return code == other.code && position == other.position && split == other.split && state == other.state;
}

IKaDualCellConfig::IKaDualCellConfig(int cellType, QObject* parent)
    : IKaButtonConfig(parent)
    , m_cellType(cellType) {}

IKaDualCellConfig::~IKaDualCellConfig() = default;

void IKaDualCellConfig::setHasLeftIcon(bool hasIcon) {
    store(m_hasLeftIcon, hasIcon);
}

void IKaDualCellConfig::setHasRightIcon(bool hasIcon) {
    store(m_hasRightIcon, hasIcon);
}

void IKaDualCellConfig::setSize(KaDualButtonEnum::Size size) {
    store(m_size, size, &IKaDualCellConfig::sizeChanged);
}

void IKaDualCellConfig::setMinimumWidth(int width) {
    store(m_minimumWidth, qMax(0, width), &IKaDualCellConfig::minimumWidthChanged);
}

void IKaDualCellConfig::setPlacement(const Placement& placement) {
    store(m_placement, placement);
}

KaDualButtonCode::ColorScheme IKaDualCellConfig::colorScheme() const {
    return KaDualButtonCode::colorScheme(m_placement.code);
}

bool IKaDualCellConfig::isVertical() const {
    return KaDualButtonCode::isVertical(m_placement.code);
}

bool IKaDualCellConfig::isAlignedRight() const {
    return KaDualButtonCode::isAlignedRight(m_placement.code);
}

bool IKaDualCellConfig::isArrowCell() const {
    if (m_placement.position != Trailing)
        return false;
    const int layout = KaDualButtonCode::cellLayout(m_placement.code);
    return layout == 0x9 || layout == 0xC || layout == 0x4;
}

void IKaDualCellConfig::fillCellColors(Config& out) const {
    out = Config();
    KaButtonEnum::State state = m_placement.state;
    const int style = styleOfScheme(colorScheme(), state);
    out.colors = KaButtonConfig::colorsFor(style, state);

    const int startSide = isVertical() ? Config::BorderTop : Config::BorderLeft;
    const int endSide = isVertical() ? Config::BorderBottom : Config::BorderRight;
    if (m_placement.position == Trailing)
        out.colors.hasBorder[startSide] = false;
    else if (!m_placement.split)
        out.colors.hasBorder[endSide] = false;
}

void IKaDualCellConfig::fillCellShape(Geometry& out) const {
    KaSizeTable::start(out, *this);
    out.vertical = isVertical();
    const bool leading = m_placement.position == Leading;
    out.roundStart = leading;
    out.roundEnd = !leading;
    if (leading && m_placement.split && !out.colors.hasAnyBorder())
        out.separatorColorSet = KaSizeTable::name(Karvox::button_group_separator_background);
}
