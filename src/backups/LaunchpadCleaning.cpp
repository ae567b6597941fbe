#include "backups/LaunchpadCleaning.h"
