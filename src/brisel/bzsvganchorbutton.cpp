#include "bzsvganchorbutton.h"
