#include "kaselectionindicator_p.h"

#include "kacolortokenutils.h"
#include "kafocusstyle.h"

#include <bzthemeutils.h>
#include <drawutils.h>

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionFocusRect>
#include <QtMath>

namespace {

BzColorSet set(Karvox::Token token, BzThemeUtils::AppThemeType type) {
    return BzThemeUtils::getColorSet(KaColorTokenUtils::tokenToString(token), type);
}

} // namespace

KaSelectionIndicator::KaSelectionIndicator(Shape shape, QAbstractButton* button)
    : m_shape(shape) {
    button->setAttribute(Qt::WA_Hover);
    button->setProperty("hasCustomRect", true);
    button->setProperty("focusBorderRadius", shape == Box ? 3.0 : kIndicator / 2.0);
    button->setProperty("focusMargin", 3);
    resolve(button);
}

void KaSelectionIndicator::resolve(const QAbstractButton* button) {
    const BzThemeUtils::AppThemeType type = BzThemeUtils::getThemeTypeOfWidget(button);
    if (m_shape == Box) {
        m_on = {set(Karvox::checkbox_checked_background, type), set(Karvox::checkbox_checked_border, type),
                set(Karvox::checkbox_checked_icon, type), set(Karvox::checkbox_checked_text, type)};
        m_off = {set(Karvox::checkbox_unchecked_background, type),
                 set(Karvox::checkbox_unchecked_border, type), BzColorSet(),
                 set(Karvox::checkbox_unchecked_text, type)};
    } else {
        m_on = {set(Karvox::radio_checked_background, type), set(Karvox::radio_checked_border, type),
                set(Karvox::radio_checked_icon, type), set(Karvox::radio_checked_text, type)};
        m_off = {set(Karvox::radio_unchecked_background, type), set(Karvox::radio_unchecked_border, type),
                 BzColorSet(), set(Karvox::radio_unchecked_text, type)};
    }
}

QSize KaSelectionIndicator::sizeHint(const QAbstractButton* button) const {
    // Fractional advance, rounded up: elidedText() compares against it, so a
    // width rounded down would elide the text it was measured for.
    const QFontMetricsF metrics(button->font());
    const QString text = button->text();
    const int textWidth = text.isEmpty() ? 0 : kSpacing + qCeil(metrics.horizontalAdvance(text));
    return QSize(kIndicator + textWidth, qMax(kIndicator + 4, qCeil(metrics.height())));
}

QRect KaSelectionIndicator::indicatorRect(const QAbstractButton* button) const {
    const QRect box(0, (button->height() - kIndicator) / 2, kIndicator, kIndicator);
    return QStyle::visualRect(button->layoutDirection(), button->rect(), box);
}

void KaSelectionIndicator::paint(QAbstractButton* button, bool on, Mark mark) const {
    QStyleOptionFocusRect option;
    option.initFrom(button);
    if (button->isDown())
        option.state |= QStyle::State_Sunken;
    const Sets& sets = on ? m_on : m_off;
    const QRect box = indicatorRect(button);

    QPainter painter(button);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal radius = m_shape == Box ? 3 : kIndicator / 2.0;
    DrawUtils::drawRoundedRect(&painter, QRectF(box), radius, sets.background.colorFor(option),
                               sets.border.colorFor(option), on ? 2 : 1);

    const QColor markColour = sets.mark.colorFor(option);
    const QPointF c = QRectF(box).center();
    switch (mark) {
    case Check: {
        QPainterPath path;
        path.moveTo(c + QPointF(-4, 0));
        path.lineTo(c + QPointF(-1.5, 2.5));
        path.lineTo(c + QPointF(4, -3));
        painter.setPen(QPen(markColour, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(path);
        break;
    }
    case Dash:
        painter.setPen(QPen(markColour, 2, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(c + QPointF(-4, 0), c + QPointF(4, 0));
        break;
    case Dot:
        painter.setPen(Qt::NoPen);
        painter.setBrush(markColour);
        painter.drawEllipse(c, 3.5, 3.5);
        break;
    case NoMark:
        break;
    }

    if (!button->text().isEmpty()) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        QRect textRect = button->rect().adjusted(kIndicator + kSpacing, 0, 0, 0);
        textRect = QStyle::visualRect(button->layoutDirection(), button->rect(), textRect);
        painter.setPen(sets.text.colorFor(option));
        const QString shown =
            button->fontMetrics().elidedText(button->text(), Qt::ElideRight, textRect.width());
        painter.drawText(textRect, int(Qt::AlignVCenter | Qt::AlignLeading | Qt::TextSingleLine), shown);
    }

    // The ring goes round the indicator, the part that toggles.
    if (option.state & QStyle::State_HasFocus)
        KaFocusStyle::requestRing(button, &painter, box);
}
