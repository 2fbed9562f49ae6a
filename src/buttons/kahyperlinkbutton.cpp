#include "kahyperlinkbutton.h"

#include "bzthemeutils.h"

#include <QEvent>

KaHyperlinkButton::KaHyperlinkButton(QWidget* parent)
    : IKaButton(parent, new KaHyperlinkButtonConfig) {
    buttonConfig()->setParent(this);
    setCursor(Qt::PointingHandCursor);
    connectRefreshSlot();
    refresh();
}

KaHyperlinkButton::KaHyperlinkButton(const QString& text, QWidget* parent)
    : KaHyperlinkButton(parent) {
    setText(text);
}

KaHyperlinkButton::~KaHyperlinkButton() = default;

KaHyperlinkButtonConfig* KaHyperlinkButton::hyperlinkConfig() const {
    return qobject_cast<KaHyperlinkButtonConfig*>(buttonConfig());
}

KaButtonEnum::Size KaHyperlinkButton::size() const {
    const KaHyperlinkButtonConfig* config = hyperlinkConfig();
    return config ? config->size() : KaButtonEnum::Normal;
}

void KaHyperlinkButton::setSize(KaButtonEnum::Size size) {
    if (!writeConfig(hyperlinkConfig(), &KaHyperlinkButtonConfig::size, &KaHyperlinkButtonConfig::setSize,
                     size))
        return;
    Q_EMIT sizeChanged(size);
    Q_EMIT refreshConfig();
    updateGeometry();
}

bool KaHyperlinkButton::alwaysUnderline() const {
    const KaHyperlinkButtonConfig* config = hyperlinkConfig();
    return config && config->alwaysUnderline();
}

void KaHyperlinkButton::setAlwaysUnderline(bool always) {
    if (!writeConfig(hyperlinkConfig(), &KaHyperlinkButtonConfig::alwaysUnderline,
                     &KaHyperlinkButtonConfig::setAlwaysUnderline, always))
        return;
    Q_EMIT alwaysUnderlineChanged(always);
    Q_EMIT refreshConfig();
}

bool KaHyperlinkButton::event(QEvent* event) {
    const bool handled = IKaButton::event(event);
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::Leave:
    case QEvent::HoverEnter:
    case QEvent::HoverLeave: {
        const bool hovered = event->type() == QEvent::Enter || event->type() == QEvent::HoverEnter;
        if (hovered != m_hovered) {
            m_hovered = hovered;
            Q_EMIT refreshConfig();
        }
        break;
    }
    case QEvent::EnabledChange:
        Q_EMIT refreshConfig();
        break;
    default:
        break;
    }
    return handled;
}

void KaHyperlinkButton::refresh() {
    const KaHyperlinkButtonConfig* config = hyperlinkConfig();
    if (!config)
        return;
    KaHyperlinkButtonConfig::Geometry g;
    config->fillGeometry(g);
    // The base button's refresh turns this into the font's underline.
    // A disabled link does not invite a click.
    g.colors.underlineText = g.colors.underlineText || (m_hovered && isEnabled());

    // The link's own small radius instead of a pill.
    applyColors(g.colors, QString(), g.borderRadius);

    IKaButton::refresh(g);
    setTextLeftPadding(g.paddingLeft);
    setTextRightPadding(g.paddingRight);
    setSvgIconVisible(g.svgIconVisible);
    setSvgIconSize(g.svgIconSize);
    setSvgIconSpacing(g.svgIconSpacing);
    setFocusBorderRadius(g.colors.squareCorners ? 0 : g.borderRadius);
}
