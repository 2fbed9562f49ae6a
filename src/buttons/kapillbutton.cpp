#include "kapillbutton.h"

#include <QHash>

namespace {
// Every refresh asks for the text of a handful of padding pairs; each is
// written once.
QString paddingSheet(int left, int right) {
    static QHash<QPair<int, int>, QString> sheets;
    const QPair<int, int> key(left, right);
    auto it = sheets.constFind(key);
    if (it == sheets.cend()) {
        if (sheets.size() >= 64)
            sheets.clear();
        it = sheets.insert(
            key, QStringLiteral("BzPushButton{padding-right:%1px;padding-left:%2px;}").arg(right).arg(left));
    }
    return *it;
}
} // namespace

KaPillButton::KaPillButton(QWidget* parent)
    : KaButton(parent, new KaPillButtonConfig) {
    connectRefreshSlot();
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
    applyColors(g.colors, paddingSheet(g.paddingLeft, g.paddingRight));
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
        setFocusBorderRadius(g.fixedHeight / 2.0);
}
