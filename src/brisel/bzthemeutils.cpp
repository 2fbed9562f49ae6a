#include "bzthemeutils.h"
