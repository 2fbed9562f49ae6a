#include "fontutils.h"
