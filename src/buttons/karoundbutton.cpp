#include "karoundbutton.h"

KaRoundButton::KaRoundButton(QWidget* parent)
    : KaButton(parent, new KaRoundButtonConfig) {
    setSvgIconAlignment(BzEnum::AlignCenter);
    connectRefreshSlot();
    refresh();
}

KaRoundButton::KaRoundButton(QWidget* parent, KaButtonEnum::Style style, KaButtonEnum::Size size)
    : KaRoundButton(parent) {
    setSize(size);
    setStyle(style);
}

KaRoundButton::~KaRoundButton() = default;

void KaRoundButton::refresh() {
    const auto* config = qobject_cast<const KaRoundButtonConfig*>(buttonConfig());
    KaRoundButtonConfig::Geometry g;
    if (!applyGeometry(config, g))
        return;
    setSvgIconSize(g.svgIconSize);
    setSvgIconVisible(config->hasLeftIcon());
    // The configuration refuses a right icon, but the path still reaches
    // the base button: keep it hidden.
    setAnchorIconVisible(false);
    if (g.fixedHeight > 0) {
        setFixedWidth(g.fixedHeight);
        setFocusBorderRadius(g.fixedHeight / 2.0);
    }
}
