#include "backups/BackupContainer.h"
