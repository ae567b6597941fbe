#include "backups/BackupArchive.h"
