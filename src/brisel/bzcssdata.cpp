#include "bzcssdata.h"
