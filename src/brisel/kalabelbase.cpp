#include "kalabelbase.h"

#include "bzfont.h"
#include "bzthemeutils.h"
#include "bzwidgettheme_p.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOption>
#include <QTextDocumentFragment>

namespace {

class KaLabelBaseAccessible : public QAccessibleWidget {
public:
    explicit KaLabelBaseAccessible(KaLabelBase* label)
        : QAccessibleWidget(label, label->accessibleRole()) {}

    QString text(QAccessible::Text t) const override {
        QString value = QAccessibleWidget::text(t);
        if (t == QAccessible::Name && value.isEmpty()) {
            const auto* label = static_cast<const KaLabelBase*>(widget());
            value = label->textFormat() == Qt::PlainText
                        ? label->text()
                        : QTextDocumentFragment::fromHtml(label->text()).toPlainText();
        }
        return value;
    }
};

QAccessibleInterface* labelFactory(const QString&, QObject* object) {
    if (auto* label = qobject_cast<KaLabelBase*>(object))
        return new KaLabelBaseAccessible(label);
    return nullptr;
}

} // namespace

KaLabelBase::KaLabelBase(QWidget* parent, QAccessible::Role role, Qt::WindowFlags flags)
    : QLabel(parent, flags)
    , m_theme(new BzWidgetTheme) {
    init(role);
}

KaLabelBase::KaLabelBase(const QString& text, QWidget* parent, QAccessible::Role role, Qt::WindowFlags flags)
    : QLabel(text, parent, flags)
    , m_theme(new BzWidgetTheme) {
    init(role);
}

KaLabelBase::~KaLabelBase() = default;

void KaLabelBase::init(QAccessible::Role role) {
    static bool factoryInstalled = false;
    if (!factoryInstalled) {
        factoryInstalled = true;
        QAccessible::installFactory(labelFactory);
    }
    m_role = role;
    setFontToken(BzFont::Body, false);
}

void KaLabelBase::setCSS(const QString& css) {
    m_theme->css = css;
    applyTheme(true);
}

void KaLabelBase::setCSS(const BzCSSData& record) {
    setCSS(BzThemeUtils::convertToWCSS(record));
}

QString KaLabelBase::getCSS() const {
    return m_theme->css;
}

BzCSSData KaLabelBase::getWCSS() const {
    return m_theme->data;
}

QString KaLabelBase::textColorSetName() const {
    return m_theme->data.textColorSet;
}

void KaLabelBase::setFontToken(int token, bool scaled) {
    const BzFont font(token, scaled);
    if (font.token() == m_fontToken && QLabel::font() == font)
        return;
    m_fontToken = font.token();
    setFont(font);
    Q_EMIT fontTokenChanged();
}

void KaLabelBase::setElideMode(Qt::TextElideMode mode) {
    if (m_elideMode == mode)
        return;
    m_elideMode = mode;
    update();
    Q_EMIT elideModeChanged();
}

QString KaLabelBase::getElidedText() const {
    return getElidedText(contentsRect().width() - 2 * margin() - 2 * indent() * (indent() > 0));
}

QString KaLabelBase::getElidedText(int width) const {
    const QString plain =
        textFormat() == Qt::RichText ? QTextDocumentFragment::fromHtml(text()).toPlainText() : text();
    if (m_elideMode == Qt::ElideNone)
        return plain;
    return fontMetrics().elidedText(plain, m_elideMode, qMax(0, width));
}

void KaLabelBase::enableArrowNavigate(bool enable) {
    m_arrowNavigate = enable;
    if (enable && focusPolicy() == Qt::NoFocus)
        setFocusPolicy(Qt::StrongFocus);
}

void KaLabelBase::setAccessibleRole(QAccessible::Role role) {
    m_role = role;
}

void KaLabelBase::onThemeChanged() {
    applyTheme(false);
}

void KaLabelBase::applyTheme(bool force) {
    if (!m_theme->resolve(this, force))
        return;
    updatePalette();
    if (!bzThemeRefreshInProgress())
        update();
    Q_EMIT cssChanged();
}

void KaLabelBase::updatePalette() {
    const BzColorSet& text = m_theme->text;
    if (!text.isValid())
        return;
    QPalette pal = palette();
    for (auto group : {QPalette::Active, QPalette::Inactive}) {
        pal.setColor(group, QPalette::WindowText, text.normal());
        pal.setColor(group, QPalette::Text, text.normal());
    }
    pal.setColor(QPalette::Disabled, QPalette::WindowText, text.disabled());
    pal.setColor(QPalette::Disabled, QPalette::Text, text.disabled());
    if (pal != palette()) {
        m_settingPalette = true;
        setPalette(pal);
        m_settingPalette = false;
    }
}

void KaLabelBase::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ParentChange && !m_theme->css.isEmpty())
        applyTheme(false);
    // During a theme refresh the window repaints whole; the base class would
    // only queue one more single-widget update. Painting reads the widget
    // palette directly, so nothing else needs the event.
    if (event->type() == QEvent::PaletteChange && m_settingPalette && bzThemeRefreshInProgress())
        return;
    QLabel::changeEvent(event);
}

void KaLabelBase::paintEvent(QPaintEvent* event) {
    QStyleOption option;
    option.initFrom(this);
    {
        QPainter painter(this);
        m_theme->paintFrame(&painter, rect(), option.state);
    }
    const bool elide = m_elideMode != Qt::ElideNone && !wordWrap() && pixmap().isNull() && !text().isEmpty();
    if (!elide) {
        QLabel::paintEvent(event);
        return;
    }
    const QRect area = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    const QString shown = getElidedText(area.width());
    QPainter painter(this);
    style()->drawItemText(&painter, area, int(QStyle::visualAlignment(layoutDirection(), alignment())),
                          palette(), isEnabled(), shown, foregroundRole());
}

void KaLabelBase::keyPressEvent(QKeyEvent* event) {
    if (m_arrowNavigate && event->modifiers() == Qt::NoModifier) {
        const bool rtl = layoutDirection() == Qt::RightToLeft;
        switch (event->key()) {
        case Qt::Key_Up:
            focusNextPrevChild(false);
            return;
        case Qt::Key_Down:
            focusNextPrevChild(true);
            return;
        case Qt::Key_Left:
            focusNextPrevChild(rtl);
            return;
        case Qt::Key_Right:
            focusNextPrevChild(!rtl);
            return;
        default:
            break;
        }
    }
    QLabel::keyPressEvent(event);
}
