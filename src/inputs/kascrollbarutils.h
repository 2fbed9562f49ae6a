#pragma once

#include "karvex_export.h"
#include "kascrollbarenum.h"

#include <bzthemeutils.h>

#include <QString>

class QAbstractScrollArea;

// The library's scroll-bar look as a Qt style sheet. Scroll bars are plain Qt
// widgets, so a style sheet is how they take the theme's colours: a thin
// track, a rounded thumb that darkens on hover and press, no arrow buttons.
namespace KaScrollbarUtils {

// The look as a template whose colours are "$(set)" references, for
// BzThemeUtils::setWidgetCSS, which re-resolves it on every theme switch.
// The minimum size sets how short the thumb may get; an out-of-range value
// counts as Normal, with a warning.
KARVEX_EXPORT QString getScrollBarTemplate(KaScrollbarEnum::MinimumSize minimumSize,
                                           Qt::Orientations orientations = Qt::Vertical);

// The same rules with the colours of the theme `type` stands for, for
// widgets that build a style sheet of their own around them.
KARVEX_EXPORT QString getScrollBarStyleSheet(KaScrollbarEnum::MinimumSize minimumSize,
                                             BzThemeUtils::AppThemeType type = BzThemeUtils::Global,
                                             Qt::Orientations orientations = Qt::Vertical);

// Gives both scroll bars of `area` the library's look, following theme
// switches from then on. A null area is ignored with a warning.
KARVEX_EXPORT void applyScrollBarStyle(QAbstractScrollArea* area,
                                       KaScrollbarEnum::MinimumSize minimumSize = KaScrollbarEnum::Normal);

} // namespace KaScrollbarUtils
