#include "backups/BackupKey.h"
