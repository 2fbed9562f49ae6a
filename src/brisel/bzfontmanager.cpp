#include "bzfontmanager.h"
