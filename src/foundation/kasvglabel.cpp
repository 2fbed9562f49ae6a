#include "kasvglabel.h"
