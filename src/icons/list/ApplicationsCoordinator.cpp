#include "icons/list/ApplicationsCoordinator.h"
