#pragma once

#include "brisel_export.h"

class QWidget;

namespace AppUtils {

// Whether the application lays out right-to-left.
BRISEL_EXPORT bool isRTLLayoutDirection();
// Whether `widget` lays out right-to-left; a widget can differ from the
// application (explicit setLayoutDirection). Null asks the application.
BRISEL_EXPORT bool isRTLLayoutDirection(const QWidget* widget);

} // namespace AppUtils
