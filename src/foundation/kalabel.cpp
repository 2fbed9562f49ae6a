#include "kalabel.h"
