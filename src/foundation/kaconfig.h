#pragma once

#include "karvex_export.h"

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

} // namespace KaConfig
