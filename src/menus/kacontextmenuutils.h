#pragma once

#include "karvex_export.h"

#include <QString>

// The look of the library's plain right-click menus, as a style-sheet
// template whose "$(set)" and "$(set.state)" colour references the base
// layer resolves per theme.
namespace KaContextMenuUtils {

// Corner radius of the menu and of the focus ring around its entries.
constexpr int Radius = 10;

KARVEX_EXPORT QString styleSheet();

} // namespace KaContextMenuUtils
