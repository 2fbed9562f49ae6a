#include "drawutils.h"

#include <QCache>
#include <QImage>
#include <QPaintDevice>
#include <QPainter>
#include <QtGlobal>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

// logical * ratio often lands a hair below a whole number (20 * 1.15 is
// 22.999...); without this slack truncation would lose a pixel.
constexpr qreal kTruncationSlack = 1e-6;

qreal checkedRatio(qreal devicePixelRatio) {
    if (std::isfinite(devicePixelRatio) && devicePixelRatio > 0)
        return devicePixelRatio;
    qWarning("DrawUtils: invalid device pixel ratio %g, using 1", devicePixelRatio);
    return 1.0;
}

qreal painterRatio(const QPainter* painter) {
    const QPaintDevice* device = painter->device();
    return device ? device->devicePixelRatioF() : 1.0;
}

// One horizontal then one vertical box pass over an 8-bit alpha image; three
// of these approximate a Gaussian closely enough for a shadow.
void boxBlurAlpha8(QImage& image, int radius) {
    const int w = image.width();
    const int h = image.height();
    const int window = 2 * radius + 1;
    std::vector<uchar> line(size_t(std::max(w, h)));

    for (int y = 0; y < h; ++y) {
        uchar* row = image.scanLine(y);
        std::copy(row, row + w, line.begin());
        int sum = 0;
        for (int x = -radius; x <= radius; ++x)
            sum += (x >= 0 && x < w) ? line[size_t(x)] : 0;
        for (int x = 0; x < w; ++x) {
            row[x] = uchar(sum / window);
            const int out = x - radius;
            const int in = x + radius + 1;
            sum += (in < w ? line[size_t(in)] : 0) - (out >= 0 ? line[size_t(out)] : 0);
        }
    }
    for (int x = 0; x < w; ++x) {
        for (int y = 0; y < h; ++y)
            line[size_t(y)] = image.constScanLine(y)[x];
        int sum = 0;
        for (int y = -radius; y <= radius; ++y)
            sum += (y >= 0 && y < h) ? line[size_t(y)] : 0;
        for (int y = 0; y < h; ++y) {
            image.scanLine(y)[x] = uchar(sum / window);
            const int out = y - radius;
            const int in = y + radius + 1;
            sum += (in < h ? line[size_t(in)] : 0) - (out >= 0 ? line[size_t(out)] : 0);
        }
    }
}

QString shadowKey(const QPainterPath& path, const QPointF& origin, QRgb rgba, int radius, qreal dpr) {
    QString key = QStringLiteral("%1|%2|%3|%4|")
                      .arg(rgba, 8, 16, QLatin1Char('0'))
                      .arg(radius)
                      .arg(dpr, 0, 'g', 6)
                      .arg(int(path.fillRule()));
    key.reserve(key.size() + path.elementCount() * 16);
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element e = path.elementAt(i);
        // 1/64 px is far below what survives the blur.
        key += QString::number(int(e.type)) + QLatin1Char(',') +
               QString::number(qRound((e.x - origin.x()) * 64)) + QLatin1Char(',') +
               QString::number(qRound((e.y - origin.y()) * 64)) + QLatin1Char(';');
    }
    return key;
}

QCache<QString, QImage>& shadowCache() {
    // Cost in KiB; a handful of popup-sized shadows.
    static QCache<QString, QImage> cache(8 * 1024);
    return cache;
}

} // namespace

namespace DrawUtils {

int toDevicePixels(qreal logical, qreal devicePixelRatio) {
    const qreal v = logical * checkedRatio(devicePixelRatio);
    return int(v >= 0 ? v + kTruncationSlack : v - kTruncationSlack);
}

QSize toDevicePixels(const QSizeF& logical, qreal devicePixelRatio) {
    const qreal dpr = checkedRatio(devicePixelRatio);
    return QSize(toDevicePixels(logical.width(), dpr), toDevicePixels(logical.height(), dpr));
}

QPixmap createPixmap(const QSizeF& logicalSize, qreal devicePixelRatio) {
    const qreal dpr = checkedRatio(devicePixelRatio);
    const QSize size = toDevicePixels(logicalSize, dpr);
    if (size.isEmpty())
        return QPixmap();
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    pixmap.setDevicePixelRatio(dpr);
    return pixmap;
}

QPainterPath roundedRectPath(const QRectF& rect, qreal radius, Corners squareCorners) {
    QPainterPath path;
    if (rect.isEmpty())
        return path;
    const QRectF r = rect.normalized();
    const qreal maxRadius = std::min(r.width(), r.height()) / 2;
    const qreal rad = std::isfinite(radius) ? qBound(qreal(0), radius, maxRadius) : qreal(0);
    const qreal tl = squareCorners.testFlag(TopLeft) ? 0 : rad;
    const qreal tr = squareCorners.testFlag(TopRight) ? 0 : rad;
    const qreal bl = squareCorners.testFlag(BottomLeft) ? 0 : rad;
    const qreal br = squareCorners.testFlag(BottomRight) ? 0 : rad;

    // Clockwise from the top-left corner.
    path.moveTo(r.left() + tl, r.top());
    path.lineTo(r.right() - tr, r.top());
    if (tr > 0)
        path.arcTo(QRectF(r.right() - 2 * tr, r.top(), 2 * tr, 2 * tr), 90, -90);
    path.lineTo(r.right(), r.bottom() - br);
    if (br > 0)
        path.arcTo(QRectF(r.right() - 2 * br, r.bottom() - 2 * br, 2 * br, 2 * br), 0, -90);
    path.lineTo(r.left() + bl, r.bottom());
    if (bl > 0)
        path.arcTo(QRectF(r.left(), r.bottom() - 2 * bl, 2 * bl, 2 * bl), 270, -90);
    path.lineTo(r.left(), r.top() + tl);
    if (tl > 0)
        path.arcTo(QRectF(r.left(), r.top(), 2 * tl, 2 * tl), 180, -90);
    path.closeSubpath();
    return path;
}

void drawRoundedRect(QPainter* painter, const QRectF& rect, qreal radius, const QColor& fill,
                     const QColor& border, qreal borderWidth, Corners squareCorners) {
    if (!painter) {
        qWarning("DrawUtils: drawRoundedRect() without a painter");
        return;
    }
    if (rect.isEmpty())
        return;
    const QRectF r = rect.normalized();
    const qreal width = std::isfinite(borderWidth)
                            ? qBound(qreal(0), borderWidth, std::min(r.width(), r.height()) / 2)
                            : qreal(0);
    const bool withBorder = width > 0 && border.isValid() && border.alpha() > 0;
    const bool withFill = fill.isValid() && fill.alpha() > 0;
    if (!withBorder && !withFill)
        return;

    const qreal inset = withBorder ? width / 2 : 0;
    const QPainterPath path = roundedRectPath(r.adjusted(inset, inset, -inset, -inset),
                                              std::max(qreal(0), radius - inset), squareCorners);

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    if (withFill)
        painter->fillPath(path, fill);
    if (withBorder)
        painter->strokePath(path, QPen(border, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter->restore();
}

QString elidedText(const QFontMetrics& metrics, const QString& text, Qt::TextElideMode mode, int width) {
    if (width <= 0 || text.isEmpty())
        return QString();
    return metrics.elidedText(text, mode, width);
}

void drawSoftShadow(QPainter* painter, const QPainterPath& path, const QColor& color, int radius) {
    if (!painter) {
        qWarning("DrawUtils: drawSoftShadow() without a painter");
        return;
    }
    if (path.isEmpty() || !color.isValid() || color.alpha() == 0)
        return;
    if (radius < 0) {
        qWarning("DrawUtils: negative shadow radius %d, using 0", radius);
        radius = 0;
    }
    if (radius == 0) {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing, true);
        painter->fillPath(path, color);
        painter->restore();
        return;
    }

    const qreal dpr = painterRatio(painter);
    const QRectF bounds = path.boundingRect();
    const QPointF origin = bounds.topLeft() - QPointF(radius, radius);
    const QString key = shadowKey(path, bounds.topLeft(), color.rgba(), radius, dpr);

    QCache<QString, QImage>& cache = shadowCache();
    if (const QImage* cached = cache.object(key)) {
        painter->drawImage(origin, *cached);
        return;
    }

    const QSize size(int(std::ceil((bounds.width() + 2 * radius) * dpr)),
                     int(std::ceil((bounds.height() + 2 * radius) * dpr)));
    if (size.isEmpty())
        return;
    QImage mask(size, QImage::Format_Alpha8);
    mask.fill(0);
    {
        QPainter p(&mask);
        p.setRenderHint(QPainter::Antialiasing, true);
        p.scale(dpr, dpr);
        p.translate(radius - bounds.left(), radius - bounds.top());
        p.fillPath(path, Qt::black);
    }
    const int boxRadius = std::max(1, qRound(radius * dpr / 3));
    for (int pass = 0; pass < 3; ++pass)
        boxBlurAlpha8(mask, boxRadius);

    QImage shadow(size, QImage::Format_ARGB32_Premultiplied);
    shadow.fill(color);
    {
        QPainter p(&shadow);
        p.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        p.drawImage(0, 0, mask);
    }
    shadow.setDevicePixelRatio(dpr);
    painter->drawImage(origin, shadow);

    // Shadows larger than the whole cache are simply not kept.
    const qsizetype cost = std::max<qsizetype>(1, shadow.sizeInBytes() / 1024);
    if (cost <= cache.maxCost())
        cache.insert(key, new QImage(shadow), cost);
}

} // namespace DrawUtils
