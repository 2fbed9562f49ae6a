#include "kasvglabelbase.h"
