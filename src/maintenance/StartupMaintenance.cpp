#include "maintenance/StartupMaintenance.h"
