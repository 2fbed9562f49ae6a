#include "bzenum.h"
