#include "bzsvgrenderer.h"
