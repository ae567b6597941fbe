#include "maintenance/HealthFinding.h"
