#include "bzwidgettheme_p.h"

#include "bzthememanager.h"

#include <QPainter>
#include <QPainterPath>
#include <QWidget>

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

void BzWidgetTheme::paintFrame(QPainter* painter, const QRectF& rect, QStyle::State state) const {
    const bool followState = data.isOn(BzCSSData::FollowState);
    const auto pick = [&](const BzColorSet& set) {
        return followState ? set.colorFor(state) : set.colorFor(state & QStyle::State_Enabled);
    };
    const QColor fill = background.isValid() ? pick(background) : QColor();
    const QColor line = border.isValid() ? pick(border) : QColor();
    const bool hasFill = fill.isValid() && fill.alpha() > 0;
    const bool hasLine = line.isValid() && line.alpha() > 0 && data.borderWidth > 0;
    if (!hasFill && !hasLine)
        return;

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const qreal radius = radiusFor(rect.height());
    if (hasFill) {
        QPainterPath path;
        path.addRoundedRect(rect, radius, radius);
        painter->fillPath(path, fill);
    }
    if (hasLine) {
        const qreal w = data.borderWidth;
        const bool allSides = data.isOn(BzCSSData::BorderTop) && data.isOn(BzCSSData::BorderRight) &&
                              data.isOn(BzCSSData::BorderBottom) && data.isOn(BzCSSData::BorderLeft);
        painter->setPen(QPen(line, w));
        painter->setBrush(Qt::NoBrush);
        // Inset by half the pen so the line stays inside and crisp.
        const QRectF inner = rect.adjusted(w / 2, w / 2, -w / 2, -w / 2);
        if (allSides) {
            const qreal r = qMax<qreal>(0, radius - w / 2);
            painter->drawRoundedRect(inner, r, r);
        } else {
            if (data.isOn(BzCSSData::BorderTop))
                painter->drawLine(QLineF(inner.topLeft(), inner.topRight()));
            if (data.isOn(BzCSSData::BorderRight))
                painter->drawLine(QLineF(inner.topRight(), inner.bottomRight()));
            if (data.isOn(BzCSSData::BorderBottom))
                painter->drawLine(QLineF(inner.bottomLeft(), inner.bottomRight()));
            if (data.isOn(BzCSSData::BorderLeft))
                painter->drawLine(QLineF(inner.topLeft(), inner.bottomLeft()));
        }
    }
    painter->restore();
}
