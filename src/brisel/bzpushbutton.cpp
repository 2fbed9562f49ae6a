#include "bzpushbutton.h"
