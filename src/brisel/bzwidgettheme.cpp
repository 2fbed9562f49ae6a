#include "bzwidgettheme_p.h"

#include "bzthememanager.h"

#include <QCache>
#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QWidget>

#include <cmath>

namespace {
const char kRecordHeader[] = "/*bz-css";

BzColorSet setFor(const QString& name, BzThemeUtils::AppThemeType type) {
    const QString trimmed = name.trimmed();
    return trimmed.isEmpty() ? BzColorSet() : BzThemeUtils::getColorSet(trimmed, type);
}
} // namespace

bool BzWidgetTheme::resolve(QWidget* widget, bool force) {
    const quint64 generation = BzThemeManager::instance()->generation();
    const BzThemeUtils::AppThemeType type = BzThemeUtils::getThemeTypeOfWidget(widget);
    if (!force && m_resolved && generation == m_generation && type == m_type)
        return false;
    m_resolved = true;
    m_generation = generation;
    m_type = type;

    const auto& sets = BzThemeUtils::getAppWColorSets();
    data = BzThemeUtils::parseCSS(widget, css, sets);
    background = data.isOn(BzCSSData::PaintBackground) ? setFor(data.backgroundColorSet, type) : BzColorSet();
    border = data.hasAnyBorder() ? setFor(data.borderColorSet, type) : BzColorSet();
    text = setFor(data.textColorSet, type);

    // A record is painted by the widget; only its extra rules need Qt's
    // style-sheet engine. Free-form templates go to the engine whole.
    QString styleSheet;
    if (css.startsWith(QLatin1String(kRecordHeader)))
        styleSheet = data.extraCSS.isEmpty() ? QString()
                                             : BzThemeUtils::parseCSS(widget, data.extraCSS, sets).styleSheet;
    else
        styleSheet = data.styleSheet;
    if (widget->styleSheet() != styleSheet)
        widget->setStyleSheet(styleSheet);
    return true;
}

qreal BzWidgetTheme::radiusFor(qreal height) const {
    return data.borderRadius < 0 ? height / 2.0 : qreal(data.borderRadius);
}

namespace {

struct FrameKey {
    QSize size; // device pixels
    qreal dpr;
    qreal radius;
    QRgb fill;
    QRgb line;
    int lineWidth;
    int sides;
    bool operator==(const FrameKey& o) const {
        return size == o.size && dpr == o.dpr && radius == o.radius && fill == o.fill && line == o.line &&
               lineWidth == o.lineWidth && sides == o.sides;
    }
};

size_t qHash(const FrameKey& k, size_t seed = 0) {
    return qHashMulti(seed, k.size.width(), k.size.height(), k.dpr, k.radius, k.fill, k.line, k.lineWidth,
                      k.sides);
}

QCache<FrameKey, QPixmap>& frameCache() {
    // Cost in KiB. Rows of identical buttons share a handful of entries.
    static QCache<FrameKey, QPixmap> cache(8 * 1024);
    static const bool cleanupRegistered = [] {
        // Pixmaps must not outlive the GUI application.
        qAddPostRoutine([] { frameCache().clear(); });
        return true;
    }();
    Q_UNUSED(cleanupRegistered);
    return cache;
}

enum Side { Top = 1, Right = 2, Bottom = 4, Left = 8 };

void drawFrame(QPainter* painter, const QRectF& rect, qreal radius, const QColor& fill, const QColor& line,
               int lineWidth, int sides) {
    painter->setRenderHint(QPainter::Antialiasing);
    if (fill.isValid()) {
        QPainterPath path;
        path.addRoundedRect(rect, radius, radius);
        painter->fillPath(path, fill);
    }
    if (!line.isValid())
        return;
    const qreal w = lineWidth;
    painter->setPen(QPen(line, w));
    painter->setBrush(Qt::NoBrush);
    // Inset by half the pen so the line stays inside and crisp.
    const QRectF inner = rect.adjusted(w / 2, w / 2, -w / 2, -w / 2);
    if (sides == (Top | Right | Bottom | Left)) {
        const qreal r = qMax<qreal>(0, radius - w / 2);
        painter->drawRoundedRect(inner, r, r);
        return;
    }
    if (sides & Top)
        painter->drawLine(QLineF(inner.topLeft(), inner.topRight()));
    if (sides & Right)
        painter->drawLine(QLineF(inner.topRight(), inner.bottomRight()));
    if (sides & Bottom)
        painter->drawLine(QLineF(inner.bottomLeft(), inner.bottomRight()));
    if (sides & Left)
        painter->drawLine(QLineF(inner.topLeft(), inner.bottomLeft()));
}

bool isWhole(qreal v) {
    return qFuzzyIsNull(v - std::round(v));
}

} // namespace

void BzWidgetTheme::paintFrame(QPainter* painter, const QRectF& rect, QStyle::State state) const {
    const bool followState = data.isOn(BzCSSData::FollowState);
    const auto pick = [&](const BzColorSet& set) {
        return followState ? set.colorFor(state) : set.colorFor(state & QStyle::State_Enabled);
    };
    QColor fill = background.isValid() ? pick(background) : QColor();
    QColor line = border.isValid() ? pick(border) : QColor();
    if (!(fill.isValid() && fill.alpha() > 0))
        fill = QColor();
    if (!(line.isValid() && line.alpha() > 0 && data.borderWidth > 0))
        line = QColor();
    if (!fill.isValid() && !line.isValid())
        return;
    int sides = 0;
    if (line.isValid()) {
        sides =
            (data.isOn(BzCSSData::BorderTop) ? Top : 0) | (data.isOn(BzCSSData::BorderRight) ? Right : 0) |
            (data.isOn(BzCSSData::BorderBottom) ? Bottom : 0) | (data.isOn(BzCSSData::BorderLeft) ? Left : 0);
    }
    const qreal radius = radiusFor(rect.height());

    // Rasterising an antialiased path per widget per paint is what a theme
    // switch spends most on; identical frames on the device pixel grid share
    // one pixmap instead.
    const QTransform device = painter->deviceTransform();
    const qreal dpr = device.m11();
    const QPointF origin = device.map(rect.topLeft());
    const QSizeF deviceSize = rect.size() * dpr;
    const bool cacheable =
        device.type() <= QTransform::TxScale && dpr > 0 && device.m22() == dpr && painter->opacity() == 1.0 &&
        painter->compositionMode() == QPainter::CompositionMode_SourceOver && isWhole(origin.x()) &&
        isWhole(origin.y()) && isWhole(deviceSize.width()) && isWhole(deviceSize.height()) &&
        deviceSize.width() * deviceSize.height() <= 512 * 512;
    if (!cacheable) {
        painter->save();
        drawFrame(painter, rect, radius, fill, line, data.borderWidth, sides);
        painter->restore();
        return;
    }
    const FrameKey key{QSize(qRound(deviceSize.width()), qRound(deviceSize.height())),
                       dpr,
                       radius,
                       fill.isValid() ? fill.rgba() : 0u,
                       line.isValid() ? line.rgba() : 0u,
                       line.isValid() ? data.borderWidth : 0,
                       sides};
    QCache<FrameKey, QPixmap>& cache = frameCache();
    const QPixmap* pm = cache.object(key);
    if (!pm) {
        QImage image(key.size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        image.setDevicePixelRatio(dpr);
        {
            QPainter p(&image);
            drawFrame(&p, QRectF(QPointF(0, 0), rect.size()), radius, fill, line, data.borderWidth, sides);
        }
        auto* made = new QPixmap(QPixmap::fromImage(std::move(image)));
        made->setDevicePixelRatio(dpr);
        const qsizetype cost = qMax<qsizetype>(1, qsizetype(key.size.width()) * key.size.height() * 4 / 1024);
        if (!cache.insert(key, made, cost)) {
            // Too big for the cache (insert deleted it): draw directly.
            painter->save();
            drawFrame(painter, rect, radius, fill, line, data.borderWidth, sides);
            painter->restore();
            return;
        }
        pm = cache.object(key);
    }
    painter->drawPixmap(rect.topLeft(), *pm);
}
