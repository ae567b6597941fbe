#include "backups/BackupManager.h"
