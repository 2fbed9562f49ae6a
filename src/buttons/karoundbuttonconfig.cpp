#include "karoundbuttonconfig.h"

#include "kasizetable_p.h"

#include <QtDebug>

namespace {

const KaSizeTable::Entry<KaSizeTable::SquareRow> kCircles[] = {
    {KaButtonEnum::ExtraLarge, {64, 32}},
    {KaButtonEnum::Large, {52, 28}},
    {KaButtonEnum::Normal, {40, 20}},
    {KaButtonEnum::Small, {32, 16}},
    {KaButtonEnum::ExtraSmall, {28, 16}},
    {KaButtonEnum::ExtraExtraSmall, {24, 13}},
    {KaButtonEnum::ExtraExtraExtraSmall, {16, 8}},
};

} // namespace

KaRoundButtonConfig::KaRoundButtonConfig(QObject* parent)
    : KaButtonConfig(parent) {
    m_size = KaButtonEnum::Small;
}

KaRoundButtonConfig::~KaRoundButtonConfig() = default;

void KaRoundButtonConfig::setHasLeftIcon(bool hasIcon) {
    store(m_hasLeftIcon, hasIcon);
}

void KaRoundButtonConfig::setHasRightIcon(bool) {
    qWarning("Setting the right icon on the KaRoundButtonConfig is not supported!");
}

void KaRoundButtonConfig::fillGeometry(Geometry& out) const {
    KaSizeTable::start(out, *this);
    out.sizePolicy = m_sizePolicy;
    if (const KaSizeTable::SquareRow* row = KaSizeTable::find(kCircles, m_size)) {
        out.fixedHeight = row->side;
        out.svgIconSize = QSize(row->icon, row->icon);
    }
}
