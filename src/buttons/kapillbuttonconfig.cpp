#include "kapillbuttonconfig.h"

#include "bzfont.h"

namespace {

struct PillRow {
    int fontToken;
    int height;
    int icon;
    int spacing;
    int padding;
    int innerMetric;
    QPoint anchorOffset;
};

bool pillRow(int size, PillRow& row) {
    switch (size) {
    case KaButtonEnum::ExtraLarge:
        row = {BzFont::ButtonLarge, 40, 20, 6, 16, 32, QPoint(0, 1)};
        return true;
    case KaButtonEnum::Large:
        row = {BzFont::ButtonLarge, 32, 16, 6, 12, 24, QPoint(2, 1)};
        return true;
    case KaButtonEnum::Normal:
    case KaButtonEnum::Small:
        row = {BzFont::Button, 28, 16, 4, 10, 20, QPoint(2, 1)};
        return true;
    case KaButtonEnum::ExtraSmall:
        row = {BzFont::Caption, 24, 16, 4, 8, 16, QPoint(0, 0)};
        return true;
    default:
        return false;
    }
}

} // namespace

KaPillButtonConfig::KaPillButtonConfig(QObject* parent)
    : KaButtonConfig(parent) {}

KaPillButtonConfig::~KaPillButtonConfig() = default;

void KaPillButtonConfig::setHasLeftIcon(bool hasIcon) {
    if (hasIcon == m_hasLeftIcon)
        return;
    m_hasLeftIcon = hasIcon;
    Q_EMIT configChanged();
}

void KaPillButtonConfig::setHasRightIcon(bool hasIcon) {
    if (hasIcon == m_hasRightIcon)
        return;
    m_hasRightIcon = hasIcon;
    Q_EMIT configChanged();
}

void KaPillButtonConfig::fillGeometry(Geometry& out) const {
    Config colorPart;
    fillConfig(colorPart);
    out = Geometry();
    static_cast<Config&>(out) = colorPart;
    out.sizePolicy = QSizePolicy(m_widthSizePolicy, QSizePolicy::Fixed, QSizePolicy::DefaultType);

    PillRow row;
    if (!pillRow(m_size, row))
        return;
    out.fontToken = row.fontToken;
    out.fixedHeight = row.height;
    out.innerMetric = row.innerMetric;
    out.paddingLeft = row.padding;
    out.paddingRight = row.padding;
    out.anchorSvgOffset = row.anchorOffset;
    out.svgIconSize = m_hasLeftIcon ? QSize(row.icon, row.icon) : QSize(0, 0);
    out.svgIconSpacing = m_hasLeftIcon ? row.spacing : 0;
    out.anchorIconSize = m_hasRightIcon ? QSize(row.icon, row.icon) : QSize(0, 0);
    out.anchorIconSpacing = m_hasRightIcon ? row.spacing : 0;
    out.svgIconVisible = m_hasLeftIcon;
    out.anchorIconVisible = m_hasRightIcon;
}
