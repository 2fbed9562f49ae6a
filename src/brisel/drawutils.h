#pragma once

#include "brisel_export.h"

#include <QColor>
#include <QFlags>
#include <QFontMetrics>
#include <QPainterPath>
#include <QPixmap>
#include <QRectF>
#include <QSize>
#include <QString>

class QPainter;

// Painting helpers shared by the components.
//
// Pixel constants are logical sizes. Where pixmaps are produced they are
// multiplied by the device pixel ratio and truncated; toDevicePixels() is
// that conversion, so every caller rounds the same way.
namespace DrawUtils {

// Same bits as the focus ring's rectangular-corner mask: a set bit makes that
// corner square.
enum Corner { TopLeft = 0x1, TopRight = 0x2, BottomLeft = 0x4, BottomRight = 0x8, AllCorners = 0xf };
Q_DECLARE_FLAGS(Corners, Corner)

BRISEL_EXPORT int toDevicePixels(qreal logical, qreal devicePixelRatio);
BRISEL_EXPORT QSize toDevicePixels(const QSizeF& logical, qreal devicePixelRatio);
// A transparent pixmap of toDevicePixels(logicalSize, dpr) with that ratio set.
BRISEL_EXPORT QPixmap createPixmap(const QSizeF& logicalSize, qreal devicePixelRatio);

// Closed path of `rect` with circular corners of `radius` (clamped to half the
// shorter side), square where `squareCorners` says so.
BRISEL_EXPORT QPainterPath roundedRectPath(const QRectF& rect, qreal radius, Corners squareCorners = {});

// Antialiased rounded rectangle. The border lies inside `rect` (its centre
// line is inset by half the width) so that whole-pixel rectangles and widths
// stay crisp. An invalid or fully transparent colour skips that part.
BRISEL_EXPORT void drawRoundedRect(QPainter* painter, const QRectF& rect, qreal radius, const QColor& fill,
                                   const QColor& border, qreal borderWidth, Corners squareCorners = {});

// `text` elided to `width` pixels; empty when there is no room at all.
BRISEL_EXPORT QString elidedText(const QFontMetrics& metrics, const QString& text, Qt::TextElideMode mode,
                                 int width);

// Blurred silhouette of `path` in `color`, spreading `radius` logical pixels
// beyond the path; draw it before the shape itself. The blurred image is
// cached per shape, colour, radius and pixel ratio, so repainting a popup
// costs one image draw.
BRISEL_EXPORT void drawSoftShadow(QPainter* painter, const QPainterPath& path, const QColor& color,
                                  int radius);

} // namespace DrawUtils

Q_DECLARE_OPERATORS_FOR_FLAGS(DrawUtils::Corners)
