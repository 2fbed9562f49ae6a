#include "bzthememanager.h"
