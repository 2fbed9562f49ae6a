#include "kadualcombocellconfig.h"

#include "bzfont.h"
#include "kasizetable_p.h"

namespace {

const KaSizeTable::Entry<KaSizeTable::TextRow> kLabels[] = {
    {KaDualButtonEnum::ExtraLarge, {BzFont::ButtonLarge, 40, 20, 6, 16, 32}},
    {KaDualButtonEnum::Large, {BzFont::ButtonLarge, 32, 16, 6, 12, 24}},
    {KaDualButtonEnum::Normal, {BzFont::Button, 28, 16, 4, 10, 20}},
};

} // namespace

KaDualComboCellConfig::KaDualComboCellConfig(QObject* parent)
    : IKaDualCellConfig(LabelCell, parent) {}

KaDualComboCellConfig::~KaDualComboCellConfig() = default;

void KaDualComboCellConfig::fillConfig(Config& out) const {
    fillCellColors(out);
    out.sizePolicy = QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed, QSizePolicy::DefaultType);
    if (const KaSizeTable::TextRow* row = KaSizeTable::find(kLabels, size()))
        KaSizeTable::applyText(out, *row);
}

void KaDualComboCellConfig::fillGeometry(Geometry& out) const {
    fillCellShape(out);
    out.minimumWidth = minimumWidth();
    out.textAlignment = isAlignedRight() ? BzEnum::Right : BzEnum::Center;
    const KaSizeTable::TextRow* row = KaSizeTable::find(kLabels, size());
    if (!row)
        return;
    out.paddingLeft = row->padding;
    out.paddingRight = row->padding;
    KaSizeTable::iconSlot(m_hasLeftIcon, *row, out.svgIconSize, out.svgIconSpacing);
    KaSizeTable::iconSlot(m_hasRightIcon, *row, out.anchorIconSize, out.anchorIconSpacing);
    out.svgIconVisible = m_hasLeftIcon;
    out.anchorIconVisible = m_hasRightIcon;
}
