#include "kahyperlinkbutton.h"

#include "bzthemeutils.h"

#include <QEvent>

KaHyperlinkButton::KaHyperlinkButton(QWidget* parent)
    : IKaButton(parent, new KaHyperlinkButtonConfig) {
    buttonConfig()->setParent(this);
    setCursor(Qt::PointingHandCursor);
    connect(this, &IKaButton::refreshConfig, this, &KaHyperlinkButton::refresh);
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

    // Like applyColors(), but with the link's own small radius instead of a
    // pill. The sides are all alike, so nothing needs mirroring.
    BzCSSData record;
    record.backgroundColorSet = g.colors.backgroundColorSet;
    record.borderColorSet = g.colors.borderColorSet;
    record.textColorSet = g.colors.textColorSet;
    record.setSwitch(BzCSSData::BorderTop, g.colors.hasBorder[KaButtonConfigRecord::BorderTop]);
    record.setSwitch(BzCSSData::BorderRight, g.colors.hasBorder[KaButtonConfigRecord::BorderRight]);
    record.setSwitch(BzCSSData::BorderBottom, g.colors.hasBorder[KaButtonConfigRecord::BorderBottom]);
    record.setSwitch(BzCSSData::BorderLeft, g.colors.hasBorder[KaButtonConfigRecord::BorderLeft]);
    record.setSwitch(BzCSSData::PaintBackground, g.colors.paintBackground);
    record.setSwitch(BzCSSData::FollowState, !g.colors.fixedColors);
    record.borderRadius = g.colors.squareCorners ? 0 : g.borderRadius;
    record.extraCSS = tooltipStyleSheet();
    const QString css = BzThemeUtils::convertToWCSS(record);
    if (css != getCSS())
        setCSS(css);
    setSvgIconColorSet(g.colors.iconColorSet);

    IKaButton::refresh(g);
    setTextLeftPadding(g.paddingLeft);
    setTextRightPadding(g.paddingRight);
    setSvgIconVisible(g.svgIconVisible);
    setSvgIconSize(g.svgIconSize);
    setSvgIconSpacing(g.svgIconSpacing);
    setFocusRadius(record.borderRadius);
}
