#pragma once

#include "karvex_export.h"

#include <QString>

// Process-wide settings of the library. GUI thread only.
namespace KaConfig {

// The host runs in a high-contrast theme. Set it before creating components;
// after a later change call KarvexUtils::updateSolvaneThemes(), since nobody
// is notified.
KARVEX_EXPORT void setIsHighContrast(bool enabled);

// The stored flag, false until set. Components read it when they choose
// colour tokens; only setIsHighContrast() writes it.
KARVEX_EXPORT extern bool highContrast;

// The user asked for less motion: animated images rest on their first
// frame. A change reaches every widget that has an onReducedMotionChanged()
// slot through a queued call, so hosts need not refresh anything.
KARVEX_EXPORT void setReducedMotion(bool enabled);
KARVEX_EXPORT bool reducedMotion();

// The caption of "new" tags and of new-feature tips. Until the host sets one
// it is the library's own "New", translated ("KaConfig" context) each time it
// is read, so an installed translator applies. An empty text restores that
// default. Components read it when built and in onThemeChanged(), so after a
// change call KarvexUtils::updateSolvaneThemes().
KARVEX_EXPORT void setDiscoverabilityCaption(const QString& caption);
KARVEX_EXPORT QString discoverabilityCaption();

// Tags (KaDiscoverabilityLabel's two tag looks) draw a visible border when
// this is set or the high-contrast flag is; off by default. Same refresh
// rule as above.
KARVEX_EXPORT void setDiscoverabilityTagBorder(bool enabled);
KARVEX_EXPORT extern bool discoverabilityTagBorder;

} // namespace KaConfig
