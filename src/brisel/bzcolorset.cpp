#include "bzcolorset.h"
