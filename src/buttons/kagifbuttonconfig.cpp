#include "kagifbuttonconfig.h"

#include "kasizetable_p.h"

namespace {

// Image side by size.
const KaSizeTable::Entry<int> kImages[] = {
    {KaButtonEnum::ExtraLarge, 24}, {KaButtonEnum::Large, 20},      {KaButtonEnum::Normal, 16},
    {KaButtonEnum::Small, 16},      {KaButtonEnum::ExtraSmall, 14},
};

} // namespace

KaGifButtonConfig::KaGifButtonConfig(QObject* parent)
    : KaPillButtonConfig(parent) {}

KaGifButtonConfig::~KaGifButtonConfig() = default;

void KaGifButtonConfig::fillGeometry(Geometry& out) const {
    out = Geometry();
    KaPillButtonConfig::fillGeometry(out);
    const int* side = KaSizeTable::find(kImages, size());
    if (!side)
        return;
    const QSize image = m_imageSize.isValid() ? m_imageSize : QSize(*side, *side);
    if (hasLeftIcon())
        out.svgIconSize = image;
    if (m_imageOnly && out.fixedHeight > 0) {
        out.fixedWidth = out.fixedHeight;
        out.svgIconSpacing = 0;
        const int room = out.fixedHeight - out.svgIconSize.width();
        out.paddingLeft = qMax(0, room / 2);
        out.paddingRight = qMax(0, room - room / 2);
    }
}

void KaGifButtonConfig::setImageSize(const QSize& size) {
    store(m_imageSize, size, &KaGifButtonConfig::imageSizeChanged);
}

void KaGifButtonConfig::setImageOnly(bool imageOnly) {
    store(m_imageOnly, imageOnly, &KaGifButtonConfig::imageOnlyChanged);
}
