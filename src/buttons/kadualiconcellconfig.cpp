#include "kadualiconcellconfig.h"

namespace {

struct IconRow {
    int side;
    int icon;
    int arrowLength;
    int arrowIcon;
    int spacing;
    int innerMetric;
};

bool iconRow(int size, IconRow& row) {
    switch (size) {
    case KaDualButtonEnum::ExtraLarge:
        row = {40, 20, 28, 16, 6, 32};
        return true;
    case KaDualButtonEnum::Large:
        row = {32, 16, 24, 12, 6, 24};
        return true;
    case KaDualButtonEnum::Normal:
        row = {28, 16, 20, 12, 4, 20};
        return true;
    default:
        return false;
    }
}

} // namespace

KaDualIconCellConfig::KaDualIconCellConfig(QObject* parent)
    : IKaDualCellConfig(IconCell, parent) {}

KaDualIconCellConfig::~KaDualIconCellConfig() = default;

QString KaDualIconCellConfig::arrowIconPath() {
    return QStringLiteral("qrc:/Resources/arrow-down-light.svg");
}

void KaDualIconCellConfig::fillConfig(Config& out) const {
    fillCellColors(out);
    out.sizePolicy = QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed, QSizePolicy::DefaultType);
    IconRow row;
    if (!iconRow(size(), row))
        return;
    out.fixedHeight = isArrowCell() && isVertical() ? row.arrowLength : row.side;
    out.innerMetric = row.innerMetric;
}

void KaDualIconCellConfig::setHasLeftIcon(bool hasIcon) {
    storeIconFlag(m_hasLeftIcon, hasIcon);
}

void KaDualIconCellConfig::setHasRightIcon(bool hasIcon) {
    storeIconFlag(m_hasRightIcon, hasIcon);
}

void KaDualIconCellConfig::fillGeometry(Geometry& out) const {
    fillCellShape(out);
    IconRow row;
    if (!iconRow(size(), row))
        return;

    if (isArrowCell()) {
        out.arrowIcon = arrowIconPath();
        out.svgIconSize = QSize(row.arrowIcon, row.arrowIcon);
        out.svgIconVisible = true;
        out.svgIconSpacing = 0;
        out.anchorIconSize = QSize(0, 0);
        out.anchorIconSpacing = 0;
        out.fixedWidth = isVertical() ? row.side : row.arrowLength;
        const int padding = (out.fixedWidth - row.arrowIcon) / 2;
        out.paddingLeft = padding;
        out.paddingRight = padding;
        return;
    }

    const int padding = (row.side - row.icon) / 2;
    out.paddingLeft = padding;
    out.paddingRight = padding;
    out.svgIconSize = m_hasLeftIcon ? QSize(row.icon, row.icon) : QSize(0, 0);
    out.svgIconVisible = m_hasLeftIcon;
    out.svgIconSpacing = 0;
    if (m_hasRightIcon) {
        out.arrowIcon = arrowIconPath();
        out.anchorIconSize = QSize(row.arrowIcon, row.arrowIcon);
        out.anchorIconSpacing = m_hasLeftIcon ? row.spacing : 0;
        out.anchorIconVisible = true;
        out.minimumWidth = row.side;
    } else {
        out.anchorIconSize = QSize(0, 0);
        out.anchorIconSpacing = 0;
        out.fixedWidth = row.side;
    }
}
