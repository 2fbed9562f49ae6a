#include "customfocusoverlay.h"

#include "kafocusstyle.h"

#include <bzcolorset.h>

#include <QPainter>

CustomFocusOverlay::CustomFocusOverlay(const std::string& outerToken, const std::string& innerToken,
                                       bool opaque, QWidget* parent)
    : QWidget(parent)
    , m_outerToken(outerToken)
    , m_innerToken(innerToken)
    , m_opaque(opaque) {
    // Only the ring is painted; whatever lies below shows through.
    setAttribute(Qt::WA_NoSystemBackground);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setObjectName(QStringLiteral("CustomFocusOverlay"));
    loadBorderColor(true);
}

// The setters repaint only on a real change: repainting a transparent
// overlay repaints the focused widget below it, whose paint asks for the
// ring again.
void CustomFocusOverlay::setRadius(double radius) {
    if (qFuzzyCompare(radius + 1, m_radius + 1))
        return;
    m_radius = radius;
    update();
}

void CustomFocusOverlay::setRectangularCornerMask(unsigned char mask) {
    if (mask == m_cornerMask)
        return;
    m_cornerMask = mask;
    update();
}

void CustomFocusOverlay::setParent(QWidget* parent) {
    QWidget::setParent(parent);
    loadBorderColor(false);
}

void CustomFocusOverlay::onThemeChanged() {
    loadBorderColor(true);
}

void CustomFocusOverlay::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    KaFocusStyle::drawFocusOutline(&painter, rect(), m_outerColor, m_innerColor, m_opaque, int(m_radius),
                                   m_cornerMask);
}

void CustomFocusOverlay::loadBorderColor(bool force) {
    const BzThemeUtils::AppThemeType type = BzThemeUtils::getThemeTypeOfWidget(this);
    if (!force && type == m_themeType)
        return;
    m_themeType = type;
    m_outerColor = BzThemeUtils::getColorSet(m_outerToken, type).normal();
    m_innerColor = BzThemeUtils::getColorSet(m_innerToken, type).normal();
    update();
}
