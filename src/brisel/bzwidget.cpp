#include "bzwidget.h"
