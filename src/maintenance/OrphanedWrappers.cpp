#include "maintenance/OrphanedWrappers.h"
