#pragma once

#include "karvex_export.h"

#include <QObject>

// Menus and menu items.
namespace KaMenuEnum {
Q_NAMESPACE_EXPORT(KARVEX_EXPORT)

enum Style : int { Normal = 0, Circular = 1 };
Q_ENUM_NS(Style)

enum Size : int { Small = 0, Medium = 1, Large = 2 };
Q_ENUM_NS(Size)
} // namespace KaMenuEnum
