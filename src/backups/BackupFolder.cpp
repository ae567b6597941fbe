#include "backups/BackupFolder.h"
