#include "kapillbutton.h"

KaPillButton::KaPillButton(QWidget* parent)
    : KaButton(parent, new KaPillButtonConfig) {
    connect(this, &IKaButton::refreshConfig, this, &KaPillButton::refresh);
    refresh();
}

KaPillButton::KaPillButton(QWidget* parent, KaButtonEnum::Style style, KaButtonEnum::Size size)
    : KaPillButton(parent) {
    setSize(size);
    setStyle(style);
}

KaPillButton::~KaPillButton() = default;

void KaPillButton::refresh() {
    const auto* config = qobject_cast<const KaPillButtonConfig*>(buttonConfig());
    if (!config)
        return;
    KaPillButtonConfig::Geometry g;
    config->fillGeometry(g);
    // Qt's engine never paints this button; the base button reads the
    // paddings back from the sheet.
    applyColors(g.colors, QStringLiteral("BzPushButton{padding-right:%1px;padding-left:%2px;}")
                              .arg(g.paddingRight)
                              .arg(g.paddingLeft));
    IKaButton::refresh(g);
    setSvgIconVisible(g.svgIconVisible);
    setAnchorIconVisible(g.anchorIconVisible);
    setSvgIconSize(g.svgIconSize);
    setAnchorIconSize(g.anchorIconSize);
    setSvgIconSpacing(g.svgIconSpacing);
    setAnchorIconSpacing(g.anchorIconSpacing);
    setAlignAnchorIconToText(g.alignAnchorIconToText);
    setAnchorSvgOffset(g.anchorSvgOffset);
    if (g.fixedHeight > 0)
        setFocusRadius(g.fixedHeight / 2.0);
}
