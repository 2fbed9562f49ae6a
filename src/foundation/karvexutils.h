#pragma once

#include "karvex_export.h"

#include <qnamespace.h>

class QObject;
class QString;
class QWidget;

namespace KarvexUtils {

// Has assistive technology read `text` out on behalf of `object`: sends an
// accessibility value-change event carrying the text as the new value.
// A null object is ignored with a warning.
KARVEX_EXPORT void announce(QObject* object, const QString& text);

// Posts a key press (no modifiers, text is the key's portable name such as
// "A" or "Space", empty for keys without one) and then a key release with
// empty text to `target`. Both are posted, never sent, so this is safe from
// inside the target's own event handlers. A null target is ignored with a
// warning.
KARVEX_EXPORT void simulateKeyEvent(QWidget* target, Qt::Key key);

// Call after switching theme (light/dark, high contrast). For every widget
// of QApplication::allWidgets(), in that order:
//  - a valid, non-empty dynamic property "css" is written again, which makes
//    the base layer resolve the widget's style-sheet template against the
//    new theme; an empty or missing "css" is left alone;
//  - if the widget has an onThemeChanged() slot, it is invoked with a queued
//    call, so it runs on a later turn of the event loop and not at all if
//    the widget is deleted first.
KARVEX_EXPORT void updateSolvaneThemes();

} // namespace KarvexUtils
