#pragma once

#include "brisel_export.h"

#include <QFont>

// Fonts of the bundled UI family by explicit pixel size, for the few places
// (avatar initials, ad-hoc labels) that do not fit a design token.
namespace FontUtils {

// Faces of the bundled family, lightest first.
enum FontFamily : int { Light = 0, Regular = 1, Medium = 2, SemiBold = 3, Bold = 4 };

// `pixelSize` below 1 is raised to 1 with a warning.
BRISEL_EXPORT QFont getFontByPixelSize(int pixelSize, QFont::Weight weight = QFont::Normal);
// The same, with the weight picked by face.
BRISEL_EXPORT QFont getFontByPixelSize(FontFamily family, int pixelSize);

} // namespace FontUtils
