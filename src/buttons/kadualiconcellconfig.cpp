#include "kadualiconcellconfig.h"

#include "kasizetable_p.h"

namespace {

struct IconRow {
    int side;
    int icon;
    int arrowLength;
    int arrowIcon;
    int spacing;
    int innerMetric;
};

const KaSizeTable::Entry<IconRow> kIcons[] = {
    {KaDualButtonEnum::ExtraLarge, {40, 20, 28, 16, 6, 32}},
    {KaDualButtonEnum::Large, {32, 16, 24, 12, 6, 24}},
    {KaDualButtonEnum::Normal, {28, 16, 20, 12, 4, 20}},
};

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
    const IconRow* row = KaSizeTable::find(kIcons, size());
    if (!row)
        return;
    out.fixedHeight = isArrowCell() && isVertical() ? row->arrowLength : row->side;
    out.innerMetric = row->innerMetric;
}

void KaDualIconCellConfig::fillGeometry(Geometry& out) const {
    fillCellShape(out);
    const IconRow* found = KaSizeTable::find(kIcons, size());
    if (!found)
        return;
    const IconRow& row = *found;

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
