#include "backups/BackupSummary.h"
