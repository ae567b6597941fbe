#include "maintenance/HealthRepair.h"
