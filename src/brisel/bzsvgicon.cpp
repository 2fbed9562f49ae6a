#include "bzsvgicon.h"
