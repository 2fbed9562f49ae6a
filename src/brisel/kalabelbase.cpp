#include "kalabelbase.h"
