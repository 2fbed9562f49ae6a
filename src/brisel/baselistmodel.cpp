#include "baselistmodel.h"
