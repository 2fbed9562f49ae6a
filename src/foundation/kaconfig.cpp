#include "kaconfig.h"

namespace KaConfig {

bool highContrast = false;

void setIsHighContrast(bool enabled) {
    highContrast = enabled;
}

} // namespace KaConfig
