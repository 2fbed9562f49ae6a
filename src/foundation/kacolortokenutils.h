#pragma once

#include "karvex_export.h"
#include "karvoxtoken.h"

#include <QString>

#include <string>

// Token names as the base layer looks them up. Both functions return a fresh
// string; a value outside the enumeration gives an empty one.
namespace KaColorTokenUtils {
KARVEX_EXPORT std::string tokenToStdString(Karvox::Token token);
KARVEX_EXPORT QString tokenToString(Karvox::Token token);
} // namespace KaColorTokenUtils
