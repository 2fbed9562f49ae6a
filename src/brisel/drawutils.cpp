#include "drawutils.h"
