#pragma once

// Keyboard focus rings as an application shows them: the library's focus
// style over Fusion, and the ring a window shows.

#include "customfocusoverlay.h"
#include "kafocusstyle.h"

#include <QApplication>
#include <QStyleFactory>

namespace FocusRingTest {

// Makes the focus style the application's style (the application owns it);
// `inner` names the colour set of the ring's inner line.
inline KaFocusStyle* installStyle(const char* inner = "textinput-background") {
    auto* style = new KaFocusStyle("global-focus-outline", inner, false,
                                   QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setStyle(style);
    return style;
}

// The ring `window` shows, or nullptr while it shows none.
inline CustomFocusOverlay* visibleRing(const QWidget& window) {
    const auto overlays = window.findChildren<CustomFocusOverlay*>();
    for (CustomFocusOverlay* overlay : overlays) {
        if (overlay->isVisible())
            return overlay;
    }
    return nullptr;
}

} // namespace FocusRingTest
