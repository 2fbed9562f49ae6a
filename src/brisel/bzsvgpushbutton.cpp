#include "bzsvgpushbutton.h"
