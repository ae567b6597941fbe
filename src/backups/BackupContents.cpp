#include "backups/BackupContents.h"
