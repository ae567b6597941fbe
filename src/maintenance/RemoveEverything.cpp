#include "maintenance/RemoveEverything.h"
