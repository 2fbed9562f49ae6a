#include "kadualcombocellconfig.h"

#include "bzfont.h"

namespace {

struct LabelRow {
    int fontToken;
    int height;
    int icon;
    int spacing;
    int padding;
    int innerMetric;
};

bool labelRow(int size, LabelRow& row) {
    switch (size) {
    case KaDualButtonEnum::ExtraLarge:
        row = {BzFont::ButtonLarge, 40, 20, 6, 16, 32};
        return true;
    case KaDualButtonEnum::Large:
        row = {BzFont::ButtonLarge, 32, 16, 6, 12, 24};
        return true;
    case KaDualButtonEnum::Normal:
        row = {BzFont::Button, 28, 16, 4, 10, 20};
        return true;
    default:
        return false;
    }
}

} // namespace

KaDualComboCellConfig::KaDualComboCellConfig(QObject* parent)
    : IKaDualCellConfig(LabelCell, parent) {}

KaDualComboCellConfig::~KaDualComboCellConfig() = default;

void KaDualComboCellConfig::fillConfig(Config& out) const {
    fillCellColors(out);
    out.sizePolicy = QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed, QSizePolicy::DefaultType);
    LabelRow row;
    if (!labelRow(size(), row))
        return;
    out.fontToken = row.fontToken;
    out.fixedHeight = row.height;
    out.innerMetric = row.innerMetric;
}

void KaDualComboCellConfig::setHasLeftIcon(bool hasIcon) {
    storeIconFlag(m_hasLeftIcon, hasIcon);
}

void KaDualComboCellConfig::setHasRightIcon(bool hasIcon) {
    storeIconFlag(m_hasRightIcon, hasIcon);
}

void KaDualComboCellConfig::fillGeometry(Geometry& out) const {
    fillCellShape(out);
    out.minimumWidth = minimumWidth();
    out.textAlignment = isAlignedRight() ? BzEnum::Right : BzEnum::Center;
    LabelRow row;
    if (!labelRow(size(), row))
        return;
    out.paddingLeft = row.padding;
    out.paddingRight = row.padding;
    out.svgIconSize = m_hasLeftIcon ? QSize(row.icon, row.icon) : QSize(0, 0);
    out.svgIconSpacing = m_hasLeftIcon ? row.spacing : 0;
    out.anchorIconSize = m_hasRightIcon ? QSize(row.icon, row.icon) : QSize(0, 0);
    out.anchorIconSpacing = m_hasRightIcon ? row.spacing : 0;
    out.svgIconVisible = m_hasLeftIcon;
    out.anchorIconVisible = m_hasRightIcon;
}
