#include "kapillbuttonconfig.h"

#include "bzfont.h"
#include "kasizetable_p.h"

namespace {

struct PillRow {
    KaSizeTable::TextRow text;
    QPoint anchorOffset;
};

const KaSizeTable::Entry<PillRow> kPills[] = {
    {KaButtonEnum::ExtraLarge, {{BzFont::ButtonLarge, 40, 20, 6, 16, 32}, QPoint(0, 1)}},
    {KaButtonEnum::Large, {{BzFont::ButtonLarge, 32, 16, 6, 12, 24}, QPoint(2, 1)}},
    {KaButtonEnum::Normal, {{BzFont::Button, 28, 16, 4, 10, 20}, QPoint(2, 1)}},
    {KaButtonEnum::Small, {{BzFont::Button, 28, 16, 4, 10, 20}, QPoint(2, 1)}},
    {KaButtonEnum::ExtraSmall, {{BzFont::Caption, 24, 16, 4, 8, 16}, QPoint(0, 0)}},
};

} // namespace

KaPillButtonConfig::KaPillButtonConfig(QObject* parent)
    : KaButtonConfig(parent) {}

KaPillButtonConfig::~KaPillButtonConfig() = default;

void KaPillButtonConfig::setHasLeftIcon(bool hasIcon) {
    store(m_hasLeftIcon, hasIcon);
}

void KaPillButtonConfig::setHasRightIcon(bool hasIcon) {
    store(m_hasRightIcon, hasIcon);
}

void KaPillButtonConfig::fillGeometry(Geometry& out) const {
    KaSizeTable::start(out, *this);
    out.sizePolicy = QSizePolicy(m_widthSizePolicy, QSizePolicy::Fixed, QSizePolicy::DefaultType);
    const PillRow* row = KaSizeTable::find(kPills, m_size);
    if (!row)
        return;
    KaSizeTable::applyText(out, row->text);
    out.paddingLeft = row->text.padding;
    out.paddingRight = row->text.padding;
    out.anchorSvgOffset = row->anchorOffset;
    KaSizeTable::iconSlot(m_hasLeftIcon, row->text, out.svgIconSize, out.svgIconSpacing);
    KaSizeTable::iconSlot(m_hasRightIcon, row->text, out.anchorIconSize, out.anchorIconSpacing);
    out.svgIconVisible = m_hasLeftIcon;
    out.anchorIconVisible = m_hasRightIcon;
}
