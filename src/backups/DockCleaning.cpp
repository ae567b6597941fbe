#include "backups/DockCleaning.h"
