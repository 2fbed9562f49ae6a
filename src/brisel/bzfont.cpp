#include "bzfont.h"
