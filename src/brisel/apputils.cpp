#include "apputils.h"
