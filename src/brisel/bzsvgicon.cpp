#include "bzsvgicon.h"

#include "bzsvgrenderer.h"

#include <QPaintDevice>
#include <QPainter>

#include <algorithm>

BzSvgIcon::BzSvgIcon(const QString& nameOrPath, const QString& colorSetName, const QSize& size)
    : m_path(BzSvgRenderer::resolvePath(nameOrPath))
    , m_colorSetName(colorSetName)
    , m_size(size) {}

void BzSvgIcon::setPath(const QString& nameOrPath) {
    m_path = BzSvgRenderer::resolvePath(nameOrPath);
}

QPixmap BzSvgIcon::pixmap(const QColor& color, qreal devicePixelRatio) const {
    if (isNull())
        return QPixmap();
    return BzSvgRenderer::cachedPixmap(m_path, m_size, color, devicePixelRatio);
}

void BzSvgIcon::paint(QPainter* painter, const QRectF& rect, const QColor& color, qreal opacity) const {
    if (!painter || isNull() || rect.isEmpty() || !color.isValid() || !(opacity > 0))
        return;
    QSizeF logical = rect.size();
    if (!m_size.isEmpty() && m_size.width() <= rect.width() && m_size.height() <= rect.height())
        logical = QSizeF(m_size);
    const QPaintDevice* device = painter->device();
    const qreal dpr = device ? device->devicePixelRatioF() : 1.0;
    const QPixmap pm =
        BzSvgRenderer::cachedPixmap(m_path, QSize(int(logical.width()), int(logical.height())), color, dpr);
    if (pm.isNull())
        return;
    const QSizeF drawn = QSizeF(pm.size()) / pm.devicePixelRatio();
    const QPointF topLeft(rect.x() + (rect.width() - drawn.width()) / 2,
                          rect.y() + (rect.height() - drawn.height()) / 2);
    painter->save();
    painter->setOpacity(painter->opacity() * std::min(opacity, qreal(1)));
    painter->drawPixmap(topLeft, pm);
    painter->restore();
}
