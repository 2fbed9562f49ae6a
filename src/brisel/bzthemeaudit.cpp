#include "bzthemeaudit.h"
