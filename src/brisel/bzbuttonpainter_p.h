#pragma once

#include "bzenum.h"
#include "bzpushbutton.h"

#include <QColor>
#include <QMargins>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

#include <functional>

class QPainter;

// Geometry of a button's content: optional main icon, text and optional
// anchor icon. Everything is placed left-to-right first and mirrored at the
// end, so "left" below always means the leading side.
struct BzButtonLayoutInput : BzButtonDecorations {
    QRect rect;
    // Style-sheet padding and the button's own text paddings.
    QMargins padding;
    int textLeftPadding = 0;
    int textRightPadding = 0;
    BzEnum::HorAlign align = BzEnum::Center;
    Qt::LayoutDirection direction = Qt::LeftToRight;
    // Natural size of the text; an empty width means no text.
    QSize text;

    bool operator==(const BzButtonLayoutInput& o) const {
        return BzButtonDecorations::operator==(o) && rect == o.rect && padding == o.padding &&
               textLeftPadding == o.textLeftPadding && textRightPadding == o.textRightPadding &&
               align == o.align && direction == o.direction && text == o.text;
    }
};

struct BzButtonLayoutResult {
    QRect text;
    QRect icon;
    QRect anchor;
    // Room the text had; the text shown may be narrower.
    int textRoom = 0;
};

namespace BzButtonPainter {

// Places the parts. `fit(room)` returns the width the text takes when it may
// use at most `room` pixels (elided or clipped).
BzButtonLayoutResult layout(const BzButtonLayoutInput& in, const std::function<int(int)>& fit);
// The smallest size showing the whole content (text of `in.text`).
QSize contentSize(const BzButtonLayoutInput& in);

// The pixel ratio of what the painter really paints on: during
// QWidget::render() into a pixmap, painter->device() is still the widget.
qreal paintRatio(const QPainter* painter);
// Whether the icon loads. Buttons keep only paths and draw through the
// shared pixmap cache, so a thousand buttons do not parse one SVG a thousand
// times; the answer is remembered per path.
bool iconAvailable(const QString& nameOrPath);
// Draws a tinted icon filling `rect`, its top-left snapped to a device pixel
// so the pixmap lands 1:1 on the device.
void drawIcon(QPainter* painter, const QString& nameOrPath, const QRect& rect, const QColor& color);

} // namespace BzButtonPainter
