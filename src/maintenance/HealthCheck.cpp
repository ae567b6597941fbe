#include "maintenance/HealthCheck.h"
