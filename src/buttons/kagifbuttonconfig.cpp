#include "kagifbuttonconfig.h"

namespace {

int tableImageSide(int size) {
    switch (size) {
    case KaButtonEnum::ExtraLarge:
        return 24;
    case KaButtonEnum::Large:
        return 20;
    case KaButtonEnum::Normal:
    case KaButtonEnum::Small:
        return 16;
    case KaButtonEnum::ExtraSmall:
        return 14;
    default:
        return 0;
    }
}

} // namespace

KaGifButtonConfig::KaGifButtonConfig(QObject* parent)
    : KaPillButtonConfig(parent) {}

KaGifButtonConfig::~KaGifButtonConfig() = default;

void KaGifButtonConfig::fillGeometry(Geometry& out) const {
    out = Geometry();
    KaPillButtonConfig::fillGeometry(out);
    const int side = tableImageSide(size());
    if (side == 0)
        return;
    const QSize image = m_imageSize.isValid() ? m_imageSize : QSize(side, side);
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
    if (size == m_imageSize)
        return;
    m_imageSize = size;
    Q_EMIT imageSizeChanged(size);
    Q_EMIT configChanged();
}

void KaGifButtonConfig::setImageOnly(bool imageOnly) {
    if (imageOnly == m_imageOnly)
        return;
    m_imageOnly = imageOnly;
    Q_EMIT imageOnlyChanged(imageOnly);
    Q_EMIT configChanged();
}
