#pragma once

#include "karvex_export.h"

#include <QObject>

namespace KaPopupEnum {
Q_NAMESPACE_EXPORT(KARVEX_EXPORT)

// The side of the anchor a popup opens on: Top above it, Bottom below it,
// Left/Right beside it. None leaves the placement to the default rules.
enum Alignment : int { None = 0, Top = 1, Left = 2, Right = 3, Bottom = 4 };
Q_ENUM_NS(Alignment)
} // namespace KaPopupEnum
