#include "maintenance/OrphanedIcons.h"
