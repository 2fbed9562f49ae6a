#include "bzwidget.h"

#include "bzfont.h"
#include "bzthemeutils.h"
#include "bzwidgettheme_p.h"

#include <QEvent>
#include <QPainter>
#include <QStyleOption>

BzWidget::BzWidget(QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
    , m_theme(new BzWidgetTheme) {}

BzWidget::~BzWidget() = default;

void BzWidget::setCSS(const QString& css) {
    themeApplied(m_theme->setText(this, css));
}

void BzWidget::setCSS(const BzCSSData& record) {
    themeApplied(m_theme->setRecord(this, record));
}

QString BzWidget::getCSS() const {
    return m_theme->css();
}

BzCSSData BzWidget::getWCSS() const {
    return m_theme->data();
}

void BzWidget::setFontToken(int token, bool scaled) {
    const BzFont font(token, scaled);
    if (font.token() == m_fontToken && QWidget::font() == font)
        return;
    m_fontToken = font.token();
    setFont(font);
    Q_EMIT fontTokenChanged();
}

void BzWidget::setFrameInset(int pixels) {
    pixels = qMax(0, pixels);
    if (pixels == m_frameInset)
        return;
    m_frameInset = pixels;
    update();
}

void BzWidget::onThemeChanged() {
    themeApplied(m_theme->refreshAfterThemeRefresh(this));
}

void BzWidget::themeApplied(bool changed) {
    if (!changed)
        return;
    if (!bzThemeRefreshInProgress())
        update();
    Q_EMIT cssChanged();
}

void BzWidget::changeEvent(QEvent* event) {
    // Reparenting may put the widget under another "themeType".
    if (event->type() == QEvent::ParentChange && !m_theme->isEmpty())
        themeApplied(m_theme->refresh(this));
    QWidget::changeEvent(event);
}

void BzWidget::paintEvent(QPaintEvent*) {
    if (m_theme->isEmpty())
        return;
    QPainter painter(this);
    const int i = m_frameInset;
    m_theme->paintFrame(&painter, rect().adjusted(i, i, -i, -i), bzWidgetState(this));
}
