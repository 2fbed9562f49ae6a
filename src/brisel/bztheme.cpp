#include "bztheme.h"
