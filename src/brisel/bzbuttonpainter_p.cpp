#include "bzbuttonpainter_p.h"

#include "bzsvgrenderer.h"

#include <QHash>
#include <QMetaObject>
#include <QPaintEngine>
#include <QPainter>
#include <QStringList>
#include <QStyle>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

enum class Part { Icon, Column, Anchor };

struct Item {
    Part part;
    int width;
};

int gapBetween(Part a, Part b, const BzButtonLayoutInput& in) {
    return (a == Part::Anchor || b == Part::Anchor) ? in.anchorSpacing : in.iconSpacing;
}

} // namespace

namespace BzButtonPainter {

BzButtonLayoutResult layout(const BzButtonLayoutInput& in, const std::function<int(int)>& fit) {
    BzButtonLayoutResult out;
    const QRect c = in.rect.adjusted(in.padding.left() + in.textLeftPadding, in.padding.top(),
                                     -(in.padding.right() + in.textRightPadding), -in.padding.bottom());
    int areaLeft = c.left();
    int areaRight = c.left() + c.width(); // exclusive

    const bool hasText = in.text.width() > 0;
    const bool hasIcon = !in.icon.isEmpty();
    const bool hasAnchor = !in.anchor.isEmpty();
    const bool iconInRow =
        hasIcon && (in.iconAlignment == BzEnum::AlignLeft || in.iconAlignment == BzEnum::AlignRight);
    const bool iconStacked =
        hasIcon && (in.iconAlignment == BzEnum::AlignTop || in.iconAlignment == BzEnum::AlignBottom);
    const QSize iconBox(in.iconTopLeftPadding.x() + in.icon.width() + in.iconBottomRightPadding.x(),
                        in.iconTopLeftPadding.y() + in.icon.height() + in.iconBottomRightPadding.y());

    if (hasAnchor && !in.anchorFollowsText) {
        // Pinned to an edge: the rest is laid out in what remains.
        const int x =
            in.anchorLeading ? areaLeft + in.anchorPadding : areaRight - in.anchorPadding - in.anchor.width();
        out.anchor = QRect(QPoint(x, c.top() + (c.height() - in.anchor.height()) / 2), in.anchor);
        if (in.anchorLeading)
            areaLeft = x + in.anchor.width() + in.anchorSpacing;
        else
            areaRight = x - in.anchorSpacing;
    } else if (hasAnchor) {
        if (in.anchorLeading)
            areaLeft += in.anchorPadding;
        else
            areaRight -= in.anchorPadding;
    }

    std::vector<Item> row;
    const bool anchorInRow = hasAnchor && in.anchorFollowsText;
    if (anchorInRow && in.anchorLeading)
        row.push_back({Part::Anchor, in.anchor.width()});
    if (iconInRow && in.iconAlignment == BzEnum::AlignLeft)
        row.push_back({Part::Icon, iconBox.width()});
    const bool hasColumn = hasText || iconStacked;
    if (hasColumn)
        row.push_back({Part::Column, 0});
    if (iconInRow && in.iconAlignment == BzEnum::AlignRight)
        row.push_back({Part::Icon, iconBox.width()});
    if (anchorInRow && !in.anchorLeading)
        row.push_back({Part::Anchor, in.anchor.width()});

    int fixed = 0;
    for (size_t i = 0; i < row.size(); ++i) {
        fixed += row[i].width;
        if (i > 0)
            fixed += gapBetween(row[i - 1].part, row[i].part, in);
    }
    const int areaWidth = areaRight - areaLeft;
    out.textRoom = std::max(0, areaWidth - fixed);
    const int textWidth = hasText ? std::min(fit(out.textRoom), out.textRoom) : 0;
    const int columnWidth = std::max(textWidth, iconStacked ? iconBox.width() : 0);
    const int total = fixed + (hasColumn ? columnWidth : 0);

    int x = areaLeft;
    if (in.align == BzEnum::Center)
        x = areaLeft + (areaWidth - total) / 2;
    else if (in.align == BzEnum::Right)
        x = areaRight - total;
    x = std::max(x, areaLeft);

    const auto iconInBox = [&](int boxX, int boxY, int boxHeight) {
        const int top = boxY + in.iconTopLeftPadding.y();
        const int room = boxHeight - in.iconTopLeftPadding.y() - in.iconBottomRightPadding.y();
        return QRect(QPoint(boxX + in.iconTopLeftPadding.x(), top + (room - in.icon.height()) / 2), in.icon);
    };

    for (size_t i = 0; i < row.size(); ++i) {
        if (i > 0)
            x += gapBetween(row[i - 1].part, row[i].part, in);
        switch (row[i].part) {
        case Part::Anchor:
            out.anchor = QRect(QPoint(x, c.top() + (c.height() - in.anchor.height()) / 2), in.anchor);
            x += in.anchor.width();
            break;
        case Part::Icon:
            out.icon = iconInBox(x, c.top(), c.height());
            x += iconBox.width();
            break;
        case Part::Column:
            if (iconStacked) {
                const int gap = hasText ? in.iconSpacing : 0;
                const int height = iconBox.height() + gap + (hasText ? in.text.height() : 0);
                const int top = c.top() + (c.height() - height) / 2;
                const int iconX = x + (columnWidth - iconBox.width()) / 2;
                const int textX = x + (columnWidth - textWidth) / 2;
                if (in.iconAlignment == BzEnum::AlignTop) {
                    out.icon = iconInBox(iconX, top, iconBox.height());
                    out.text = QRect(textX, top + iconBox.height() + gap, textWidth, in.text.height());
                } else {
                    out.text = QRect(textX, top, textWidth, in.text.height());
                    out.icon = iconInBox(iconX, top + in.text.height() + gap, iconBox.height());
                }
            } else {
                out.text = QRect(x, c.top(), textWidth, c.height());
            }
            x += columnWidth;
            break;
        }
    }
    if (hasIcon && in.iconAlignment == BzEnum::AlignCenter) {
        const QRect box = c.adjusted(in.iconTopLeftPadding.x(), in.iconTopLeftPadding.y(),
                                     -in.iconBottomRightPadding.x(), -in.iconBottomRightPadding.y());
        out.icon = QRect(QPoint(box.left() + (box.width() - in.icon.width()) / 2,
                                box.top() + (box.height() - in.icon.height()) / 2),
                         in.icon);
    }
    if (hasAnchor)
        out.anchor.translate(in.anchorOffset);

    if (in.direction == Qt::RightToLeft) {
        out.text = QStyle::visualRect(Qt::RightToLeft, in.rect, out.text);
        if (hasIcon)
            out.icon = QStyle::visualRect(Qt::RightToLeft, in.rect, out.icon);
        if (hasAnchor)
            out.anchor = QStyle::visualRect(Qt::RightToLeft, in.rect, out.anchor);
    }
    return out;
}

QSize contentSize(const BzButtonLayoutInput& in) {
    const bool hasText = in.text.width() > 0;
    const bool hasIcon = !in.icon.isEmpty();
    const bool hasAnchor = !in.anchor.isEmpty();
    const QSize iconBox(in.iconTopLeftPadding.x() + in.icon.width() + in.iconBottomRightPadding.x(),
                        in.iconTopLeftPadding.y() + in.icon.height() + in.iconBottomRightPadding.y());
    int width = hasText ? in.text.width() : 0;
    int height = hasText ? in.text.height() : 0;
    if (hasIcon) {
        switch (in.iconAlignment) {
        case BzEnum::AlignLeft:
        case BzEnum::AlignRight:
            width += iconBox.width() + (hasText ? in.iconSpacing : 0);
            height = std::max(height, iconBox.height());
            break;
        case BzEnum::AlignTop:
        case BzEnum::AlignBottom:
            width = std::max(width, iconBox.width());
            height += iconBox.height() + (hasText ? in.iconSpacing : 0);
            break;
        case BzEnum::AlignCenter:
            width = std::max(width, iconBox.width());
            height = std::max(height, iconBox.height());
            break;
        }
    }
    if (hasAnchor) {
        width += in.anchor.width() + in.anchorPadding + ((hasText || hasIcon) ? in.anchorSpacing : 0);
        height = std::max(height, in.anchor.height());
    }
    width += in.padding.left() + in.padding.right() + in.textLeftPadding + in.textRightPadding;
    height += in.padding.top() + in.padding.bottom();
    return QSize(width, height);
}

qreal paintRatio(const QPainter* painter) {
    const QPaintEngine* engine = painter->paintEngine();
    if (engine && engine->paintDevice())
        return engine->paintDevice()->devicePixelRatioF();
    return painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
}

bool iconAvailable(const QString& nameOrPath) {
    const QString path = BzSvgRenderer::resolvePath(nameOrPath);
    if (path.isEmpty())
        return false;
    static QHash<QString, bool> known;
    const auto it = known.constFind(path);
    if (it != known.constEnd())
        return it.value();
    const bool valid = BzSvgRenderer(path).isValid();
    known.insert(path, valid);
    return valid;
}

void drawIcon(QPainter* painter, const QString& nameOrPath, const QRect& rect, const QColor& color) {
    if (rect.isEmpty() || !color.isValid() || color.alpha() == 0)
        return;
    const QPixmap pm = BzSvgRenderer::cachedPixmap(nameOrPath, rect.size(), color, paintRatio(painter));
    if (pm.isNull())
        return;
    // A widget at an odd logical position under a fractional ratio starts
    // between device pixels; round to the grid, then map back.
    QPointF origin = rect.topLeft();
    const QTransform toDevice = painter->deviceTransform();
    if (toDevice.type() <= QTransform::TxScale) {
        const QPointF device = toDevice.map(origin);
        origin = toDevice.inverted().map(QPointF(std::round(device.x()), std::round(device.y())));
    }
    painter->drawPixmap(origin, pm);
}

} // namespace BzButtonPainter
