#include "kafocusstyle.h"
