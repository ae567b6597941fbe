#include "maintenance/LayoutCheck.h"
