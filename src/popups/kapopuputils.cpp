#include "kapopuputils.h"

#include "kacolortokenutils.h"

#include <bzthememanager.h>
#include <drawutils.h>

#include <QCache>
#include <QPainter>
#include <QPainterPath>
#include <QPixmapCache>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

namespace {

using Alignment = KaPopupEnum::Alignment;

// The shadow colour set is a scrim; a popup's shadow wants much less of it.
constexpr qreal kShadowOpacity = 0.35;

// Everything a bubble's shadow depends on (the radius and offset are
// constants), so that a repaint finds it without building a key string.
struct ShadowKey {
    QSize size;
    int side = 0;
    bool arrow = false;
    bool fixedArrow = false;
    int along64 = 0; // arrow tip along its edge, in 1/64 px
    qreal dpr = 1;
    QRgb color = 0;

    bool operator==(const ShadowKey& o) const {
        return size == o.size && side == o.side && arrow == o.arrow && fixedArrow == o.fixedArrow &&
               along64 == o.along64 && dpr == o.dpr && color == o.color;
    }
};

size_t qHash(const ShadowKey& k, size_t seed = 0) {
    return qHashMulti(seed, k.size.width(), k.size.height(), k.side, k.arrow, k.fixedArrow, k.along64, k.dpr,
                      k.color);
}

struct ShadowImage {
    QImage image;
    QPointF origin;
};

QCache<ShadowKey, ShadowImage>& shadowCache() {
    // Cost in KiB; a handful of popup-sized shadows.
    static QCache<ShadowKey, ShadowImage> cache(8 * 1024);
    return cache;
}

// Draws the blurred shadow of `path`, rendered once per key.
void drawShadow(QPainter* painter, const QPainterPath& path, const ShadowKey& key, const QColor& color,
                int radius) {
    QCache<ShadowKey, ShadowImage>& cache = shadowCache();
    if (const ShadowImage* cached = cache.object(key)) {
        painter->drawImage(cached->origin, cached->image);
        return;
    }
    const QRectF area = path.boundingRect().adjusted(-radius, -radius, radius, radius);
    const QSize pixels(int(std::ceil(area.width() * key.dpr)), int(std::ceil(area.height() * key.dpr)));
    if (pixels.isEmpty())
        return;
    auto entry = std::make_unique<ShadowImage>();
    entry->image = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
    entry->image.setDevicePixelRatio(key.dpr);
    entry->image.fill(0);
    entry->origin = area.topLeft();
    {
        QPainter p(&entry->image);
        p.translate(-area.topLeft());
        DrawUtils::drawSoftShadow(&p, path, color, radius);
    }
    painter->drawImage(entry->origin, entry->image);
    const qsizetype cost = std::max<qsizetype>(1, entry->image.sizeInBytes() / 1024);
    if (cost <= cache.maxCost())
        cache.insert(key, entry.release(), cost);
}

bool isVertical(Alignment alignment) {
    // Popups above or below the anchor carry the arrow on a horizontal edge.
    return alignment == KaPopupEnum::Top || alignment == KaPopupEnum::Bottom;
}

// Clockwise outline of `r` with rounded corners and, unless `arrowSide` is
// None, a triangle on that edge: tip at `along` on the edge's axis,
// `length` outwards, `base` wide where it meets the edge.
QPainterPath bubblePath(const QRectF& r, qreal radius, Alignment arrowSide, qreal along, qreal base,
                        qreal length) {
    QPainterPath path;
    const qreal rad = std::min(radius, std::min(r.width(), r.height()) / 2);
    const qreal half = base / 2;
    const bool arrow = base > 0 && length > 0;

    path.moveTo(r.left() + rad, r.top());
    if (arrow && arrowSide == KaPopupEnum::Bottom) { // arrow on the top edge
        path.lineTo(along - half, r.top());
        path.lineTo(along, r.top() - length);
        path.lineTo(along + half, r.top());
    }
    path.lineTo(r.right() - rad, r.top());
    path.arcTo(QRectF(r.right() - 2 * rad, r.top(), 2 * rad, 2 * rad), 90, -90);
    if (arrow && arrowSide == KaPopupEnum::Left) { // arrow on the right edge
        path.lineTo(r.right(), along - half);
        path.lineTo(r.right() + length, along);
        path.lineTo(r.right(), along + half);
    }
    path.lineTo(r.right(), r.bottom() - rad);
    path.arcTo(QRectF(r.right() - 2 * rad, r.bottom() - 2 * rad, 2 * rad, 2 * rad), 0, -90);
    if (arrow && arrowSide == KaPopupEnum::Top) { // arrow on the bottom edge
        path.lineTo(along + half, r.bottom());
        path.lineTo(along, r.bottom() + length);
        path.lineTo(along - half, r.bottom());
    }
    path.lineTo(r.left() + rad, r.bottom());
    path.arcTo(QRectF(r.left(), r.bottom() - 2 * rad, 2 * rad, 2 * rad), 270, -90);
    if (arrow && arrowSide == KaPopupEnum::Right) { // arrow on the left edge
        path.lineTo(r.left(), along + half);
        path.lineTo(r.left() - length, along);
        path.lineTo(r.left(), along - half);
    }
    path.lineTo(r.left(), r.top() + rad);
    path.arcTo(QRectF(r.left(), r.top(), 2 * rad, 2 * rad), 180, -90);
    path.closeSubpath();
    return path;
}

// The cover scaled to device pixels once per size, not on every paint.
QPixmap scaledCover(const QPixmap& cover, const QSize& deviceSize) {
    const QString key = QStringLiteral("karvex-popup-cover-%1-%2x%3")
                            .arg(cover.cacheKey())
                            .arg(deviceSize.width())
                            .arg(deviceSize.height());
    QPixmap scaled;
    if (QPixmapCache::find(key, &scaled))
        return scaled;
    scaled = cover.scaled(deviceSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QPixmapCache::insert(key, scaled);
    return scaled;
}

} // namespace

namespace KaPopupUtils {

PopupColors popupColors(BzThemeUtils::AppThemeType type) {
    static quint64 generation = 0;
    static bool any = false;
    static std::array<PopupColors, 5> colors;
    static std::array<bool, 5> resolved{};

    const quint64 current = BzThemeManager::instance()->generation();
    if (!any || current != generation) {
        generation = current;
        resolved.fill(false);
        any = true;
    }
    const int index = std::clamp(int(type), 0, int(colors.size()) - 1);
    if (!resolved[size_t(index)]) {
        PopupColors& c = colors[size_t(index)];
        c.background = BzThemeUtils::getColorSet(
                           KaColorTokenUtils::tokenToString(Karvox::popover_primary_background), type)
                           .normal();
        c.border =
            BzThemeUtils::getColorSet(KaColorTokenUtils::tokenToString(Karvox::modal_primary_border), type)
                .normal();
        c.shadow = BzThemeUtils::getColorSet(
                       KaColorTokenUtils::tokenToString(Karvox::overlayFade_meetings_background), type)
                       .normal();
        c.shadow.setAlphaF(c.shadow.alphaF() * kShadowOpacity);
        resolved[size_t(index)] = true;
    }
    return colors[size_t(index)];
}

KaPopupEnum::Alignment effectiveAlignment(KaPopupEnum::Alignment alignment) {
    switch (alignment) {
    case KaPopupEnum::Top:
    case KaPopupEnum::Left:
    case KaPopupEnum::Right:
    case KaPopupEnum::Bottom:
        return alignment;
    case KaPopupEnum::None:
        break;
    }
    return KaPopupEnum::Bottom;
}

KaPopupEnum::Alignment oppositeAlignment(KaPopupEnum::Alignment alignment) {
    switch (effectiveAlignment(alignment)) {
    case KaPopupEnum::Top:
        return KaPopupEnum::Bottom;
    case KaPopupEnum::Left:
        return KaPopupEnum::Right;
    case KaPopupEnum::Right:
        return KaPopupEnum::Left;
    default:
        return KaPopupEnum::Top;
    }
}

QMargins bodyMargins(KaPopupEnum::Alignment alignment, bool arrow) {
    QMargins m(ShadowMargin, ShadowMargin, ShadowMargin, ShadowMargin);
    if (!arrow)
        return m;
    switch (effectiveAlignment(alignment)) {
    case KaPopupEnum::Top:
        m.setBottom(m.bottom() + ArrowLength);
        break;
    case KaPopupEnum::Left:
        m.setRight(m.right() + ArrowLength);
        break;
    case KaPopupEnum::Right:
        m.setLeft(m.left() + ArrowLength);
        break;
    default:
        m.setTop(m.top() + ArrowLength);
        break;
    }
    return m;
}

QRect bodyRect(const QSize& windowSize, KaPopupEnum::Alignment alignment, bool arrow) {
    return QRect(QPoint(0, 0), windowSize).marginsRemoved(bodyMargins(alignment, arrow));
}

QPoint anchorPoint(const KaControlHandle& handle, KaPopupEnum::Alignment alignment) {
    if (!handle.isValid())
        return QPoint();
    const QRect r = handle.globalRect();
    switch (effectiveAlignment(alignment)) {
    case KaPopupEnum::Top:
        return QPoint(r.center().x(), r.top());
    case KaPopupEnum::Left:
        return QPoint(r.left(), r.center().y());
    case KaPopupEnum::Right:
        return QPoint(r.right(), r.center().y());
    default:
        return QPoint(r.center().x(), r.bottom());
    }
}

QPoint calculateShowPoint(const KaControlHandle& handle, KaPopupEnum::Alignment alignment, int width,
                          int height, int offset, KaPopupEnum::Alignment* shownAlignment) {
    const KaPopupEnum::Alignment requested = effectiveAlignment(alignment);
    if (shownAlignment)
        *shownAlignment = requested;
    if (!handle.isValid()) {
        qWarning("KaPopupUtils: cannot place a popup without a live anchor");
        return QPoint();
    }
    if (offset < 0 || offset > 100) {
        qWarning("KaPopupUtils: arrow offset %d%% out of range, clamped", offset);
        offset = std::clamp(offset, 0, 100);
    }
    width = std::max(width, 0);
    height = std::max(height, 0);

    const QRect r = handle.globalRect();
    const QScreen* screen = handle.screen();
    const QRect area = screen ? screen->availableGeometry() : QRect();

    const int alongX = qRound(width * offset / 100.0);
    const int alongY = qRound(height * offset / 100.0);
    auto place = [&](KaPopupEnum::Alignment side) {
        switch (side) {
        case KaPopupEnum::Top:
            return QPoint(r.center().x() - alongX, r.top() - AnchorGap - (height - ShadowMargin));
        case KaPopupEnum::Left:
            return QPoint(r.left() - AnchorGap - (width - ShadowMargin), r.center().y() - alongY);
        case KaPopupEnum::Right:
            return QPoint(r.right() + 1 + AnchorGap - ShadowMargin, r.center().y() - alongY);
        default:
            return QPoint(r.center().x() - alongX, r.bottom() + 1 + AnchorGap - ShadowMargin);
        }
    };
    // Only the axis that leaves the anchor decides the side; sliding along
    // the edge is the clamp's job.
    auto fits = [&](KaPopupEnum::Alignment side, const QPoint& p) {
        switch (side) {
        case KaPopupEnum::Top:
            return p.y() >= area.top();
        case KaPopupEnum::Left:
            return p.x() >= area.left();
        case KaPopupEnum::Right:
            return p.x() + width - 1 <= area.right();
        default:
            return p.y() + height - 1 <= area.bottom();
        }
    };
    auto room = [&](KaPopupEnum::Alignment side) {
        switch (side) {
        case KaPopupEnum::Top:
            return r.top() - area.top();
        case KaPopupEnum::Left:
            return r.left() - area.left();
        case KaPopupEnum::Right:
            return area.right() - r.right();
        default:
            return area.bottom() - r.bottom();
        }
    };

    KaPopupEnum::Alignment side = requested;
    QPoint p = place(side);
    if (area.isValid() && !fits(side, p)) {
        const KaPopupEnum::Alignment other = oppositeAlignment(side);
        const QPoint q = place(other);
        if (fits(other, q) || room(other) > room(side)) {
            side = other;
            p = q;
        }
    }
    if (area.isValid()) {
        // Larger than the screen: keep the top-left corner visible.
        p.setX(std::max(area.left(), std::min(p.x(), area.right() - width + 1)));
        p.setY(std::max(area.top(), std::min(p.y(), area.bottom() - height + 1)));
    }
    if (shownAlignment)
        *shownAlignment = side;
    return p;
}

int coverHeight(const QPixmap& cover, int bodyWidth) {
    if (cover.isNull() || bodyWidth <= 0)
        return 0;
    const QSizeF logical = cover.deviceIndependentSize();
    if (logical.width() <= 0)
        return 0;
    return qRound(bodyWidth * logical.height() / logical.width());
}

void paintBubble(QPainter* painter, const Bubble& bubble) {
    if (!painter) {
        qWarning("KaPopupUtils: paintBubble() without a painter");
        return;
    }
    const QRect body = bodyRect(bubble.size, bubble.alignment, bubble.arrow);
    if (body.isEmpty())
        return;
    const KaPopupEnum::Alignment side = effectiveAlignment(bubble.alignment);
    const bool vertical = isVertical(side);

    // The outline runs through the middle of the border, so a whole-pixel
    // body gives a crisp one-pixel border at any whole device pixel ratio.
    const qreal inset = BorderWidth / 2.0;
    const QRectF outline = QRectF(body).adjusted(inset, inset, -inset, -inset);
    const qreal radius = BodyRadius - inset;

    qreal base = 0;
    qreal length = 0;
    qreal along = 0;
    if (bubble.arrow) {
        const qreal edgeStart = vertical ? outline.left() : outline.top();
        const qreal edgeEnd = vertical ? outline.right() : outline.bottom();
        const qreal straight = (edgeEnd - edgeStart) - 2 * radius;
        base = ArrowBase;
        if (!bubble.fixedArrowSize && straight < base) {
            // A small body: shrink the arrow to the straight part of its edge.
            base = std::max(qreal(0), straight);
        }
        length = (ArrowLength - inset) * base / ArrowBase;
        // Keep the arrow's base where the edge is straight (a fixed arrow
        // may run into the corners, but never off the body).
        const qreal reserve = bubble.fixedArrowSize && straight < base ? 0 : radius;
        const qreal lo = edgeStart + reserve + base / 2;
        const qreal hi = edgeEnd - reserve - base / 2;
        const int windowExtent = vertical ? bubble.size.width() : bubble.size.height();
        const qreal wanted = bubble.arrowAt < 0 ? windowExtent / 2.0 : bubble.arrowAt + 0.5;
        along = lo <= hi ? std::clamp(wanted, lo, hi) : (edgeStart + edgeEnd) / 2;
    }
    const QPainterPath path =
        bubblePath(outline, radius, bubble.arrow ? side : KaPopupEnum::None, along, base, length);

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    painter->setRenderHint(QPainter::SmoothPixmapTransform, true);
    if (bubble.colors.shadow.isValid() && bubble.colors.shadow.alpha() > 0) {
        ShadowKey key;
        key.size = bubble.size;
        key.side = int(side);
        key.arrow = bubble.arrow;
        key.fixedArrow = bubble.fixedArrowSize;
        key.along64 = qRound(along * 64);
        key.dpr = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
        key.color = bubble.colors.shadow.rgba();
        drawShadow(painter, path.translated(0, ShadowOffsetY), key, bubble.colors.shadow, ShadowRadius);
    }
    painter->fillPath(path, bubble.colors.background);

    const int coverH = std::min(coverHeight(bubble.cover, body.width()), body.height());
    if (coverH > 0) {
        const QRect coverRect(body.topLeft(), QSize(body.width(), coverH));
        const DrawUtils::Corners square =
            coverH < body.height() ? DrawUtils::Corners(DrawUtils::BottomLeft | DrawUtils::BottomRight)
                                   : DrawUtils::Corners();
        const qreal dpr = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
        const QSize deviceSize = DrawUtils::toDevicePixels(QSizeF(coverRect.size()), dpr);
        if (!deviceSize.isEmpty()) {
            // A texture brush keeps the rounded corners antialiased, which a
            // clip path would not.
            QBrush brush(scaledCover(bubble.cover, deviceSize));
            brush.setTransform(
                QTransform::fromTranslate(coverRect.x(), coverRect.y()).scale(1 / dpr, 1 / dpr));
            painter->fillPath(DrawUtils::roundedRectPath(coverRect, BodyRadius, square), brush);
        }
    }

    if (bubble.colors.border.isValid() && bubble.colors.border.alpha() > 0)
        painter->strokePath(
            path, QPen(bubble.colors.border, BorderWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter->restore();
}

void drawPopup(QWidget* widget, QPainter* painter, KaPopupEnum::Alignment alignment,
               const QPoint& anchorPoint, int offset, const QPixmap& coverPixmap, bool arrowFlag,
               const QSize& size) {
    if (!painter) {
        qWarning("KaPopupUtils: drawPopup() without a painter");
        return;
    }
    const KaPopupEnum::Alignment side = effectiveAlignment(alignment);
    Bubble bubble;
    bubble.size = size;
    bubble.alignment = side;
    bubble.arrow = arrowFlag;
    bubble.cover = coverPixmap;
    bubble.colors = popupColors(widget ? BzThemeUtils::getThemeTypeOfWidget(widget) : BzThemeUtils::Global);
    if (arrowFlag) {
        if (widget && !anchorPoint.isNull()) {
            const QPoint local = widget->mapFromGlobal(anchorPoint);
            // An anchor before the window's start still means "as far
            // towards it as the body allows", not "the middle".
            bubble.arrowAt = std::max(0, isVertical(side) ? local.x() : local.y());
        } else {
            const int extent = isVertical(side) ? size.width() : size.height();
            bubble.arrowAt = qRound(extent * std::clamp(offset, 0, 100) / 100.0);
        }
    }
    paintBubble(painter, bubble);
}

} // namespace KaPopupUtils
