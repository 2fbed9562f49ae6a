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
    m_theme->css = css;
    applyTheme(true);
}

void BzWidget::setCSS(const BzCSSData& record) {
    setCSS(BzThemeUtils::convertToWCSS(record));
}

QString BzWidget::getCSS() const {
    return m_theme->css;
}

BzCSSData BzWidget::getWCSS() const {
    return m_theme->data;
}

void BzWidget::setFontToken(int token, bool scaled) {
    const BzFont font(token, scaled);
    if (font.token() == m_fontToken && QWidget::font() == font)
        return;
    m_fontToken = font.token();
    setFont(font);
    Q_EMIT fontTokenChanged();
}

void BzWidget::onThemeChanged() {
    applyTheme(false);
}

void BzWidget::applyTheme(bool force) {
    if (m_theme->resolve(this, force)) {
        if (!bzThemeRefreshInProgress())
            update();
        Q_EMIT cssChanged();
    }
}

void BzWidget::changeEvent(QEvent* event) {
    // Reparenting may put the widget under another "themeType".
    if (event->type() == QEvent::ParentChange && !m_theme->css.isEmpty())
        applyTheme(false);
    QWidget::changeEvent(event);
}

void BzWidget::paintEvent(QPaintEvent*) {
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    m_theme->paintFrame(&painter, rect(), option.state);
}
