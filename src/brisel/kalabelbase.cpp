#include "kalabelbase.h"

#include "bzfont.h"
#include "bzthemeutils.h"
#include "bzwidgettheme_p.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMovie>
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
    themeApplied(m_theme->setText(this, css));
}

void KaLabelBase::setCSS(const BzCSSData& record) {
    themeApplied(m_theme->setRecord(this, record));
}

QString KaLabelBase::getCSS() const {
    return m_theme->css();
}

BzCSSData KaLabelBase::getWCSS() const {
    return m_theme->data();
}

QString KaLabelBase::textColorSetName() const {
    return m_theme->data().textColorSet;
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
    m_elidedValid = false;
    update();
    Q_EMIT elideModeChanged();
}

QString KaLabelBase::getElidedText() const {
    return getElidedText(contentsRect().width() - 2 * margin() - 2 * indent() * (indent() > 0));
}

QString KaLabelBase::getElidedText(int width) const {
    const QString source = text();
    width = qMax(0, width);
    // Painting asks on every frame; the answer only moves with the text,
    // the width, the mode or the font.
    if (m_elidedValid && m_elidedWidth == width && m_elidedSource == source)
        return m_elided;
    const QString plain =
        textFormat() == Qt::RichText ? QTextDocumentFragment::fromHtml(source).toPlainText() : source;
    m_elided = m_elideMode == Qt::ElideNone ? plain : fontMetrics().elidedText(plain, m_elideMode, width);
    m_elidedSource = source;
    m_elidedWidth = width;
    m_elidedValid = true;
    return m_elided;
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
    themeApplied(m_theme->refreshAfterThemeRefresh(this));
}

void KaLabelBase::themeApplied(bool changed) {
    if (!changed)
        return;
    // Plain labels are painted with the resolved colour directly; only the
    // ones Qt paints (rich text, selectable text, pixmaps) need a palette of
    // their own, which costs every label memory and time otherwise.
    if (m_paletteApplied || !paintsPlainText())
        updatePalette();
    if (!bzThemeRefreshInProgress())
        update();
    Q_EMIT cssChanged();
}

bool KaLabelBase::paintsPlainText() const {
    if (!isEnabled() || frameWidth() > 0 || !pixmap().isNull() || movie() || buddy())
        return false;
    // Links only matter in rich text, which Qt paints anyway.
    if (textInteractionFlags() &
        (Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard | Qt::TextEditable))
        return false;
    switch (textFormat()) {
    case Qt::PlainText:
        return true;
    case Qt::AutoText:
        return !Qt::mightBeRichText(text());
    default:
        return false;
    }
}

void KaLabelBase::updatePalette() {
    const BzColorSet& text = m_theme->text();
    if (!text.isValid())
        return;
    m_paletteApplied = true;
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
    if (event->type() == QEvent::ParentChange && !m_theme->isEmpty())
        themeApplied(m_theme->refresh(this));
    if (event->type() == QEvent::FontChange)
        m_elidedValid = false;
    // During a theme refresh the window repaints whole; the base class would
    // only queue one more single-widget update. Painting reads the widget
    // palette directly, so nothing else needs the event.
    if (event->type() == QEvent::PaletteChange && m_settingPalette && bzThemeRefreshInProgress())
        return;
    QLabel::changeEvent(event);
}

void KaLabelBase::paintEvent(QPaintEvent* event) {
    const QStyle::State state = bzWidgetState(this);
    QPainter painter(this);
    if (!m_theme->isEmpty())
        m_theme->paintFrame(&painter, rect(), state);
    const bool plain = paintsPlainText();
    if (!plain && !m_paletteApplied)
        updatePalette();
    const bool elide = m_elideMode != Qt::ElideNone && !wordWrap() && pixmap().isNull() && !text().isEmpty();
    if (!plain && !elide) {
        painter.end();
        QLabel::paintEvent(event);
        return;
    }
    // The same placement as QLabel gives plain text.
    QRect area = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    const QString shown = elide ? getElidedText(area.width()) : text();
    if (shown.isEmpty())
        return;
    const Qt::LayoutDirection direction =
        plain ? (shown.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight) : layoutDirection();
    const int align = int(QStyle::visualAlignment(direction, alignment()));
    if (plain && indent() > 0) {
        const int m = indent();
        if (align & Qt::AlignLeft)
            area.setLeft(area.left() + m);
        if (align & Qt::AlignRight)
            area.setRight(area.right() - m);
        if (align & Qt::AlignTop)
            area.setTop(area.top() + m);
        if (align & Qt::AlignBottom)
            area.setBottom(area.bottom() - m);
    }
    const BzColorSet& colours = m_theme->text();
    painter.setPen(colours.isValid() && plain ? colours.normal() : palette().color(foregroundRole()));
    const int flags =
        (plain ? (direction == Qt::LeftToRight ? Qt::TextForceLeftToRight : Qt::TextForceRightToLeft) : 0) |
        (wordWrap() ? Qt::TextWordWrap : 0);
    painter.drawText(area, align | flags, shown);
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
