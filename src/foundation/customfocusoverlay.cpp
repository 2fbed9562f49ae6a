#include "customfocusoverlay.h"
