#include "backups/BackupRestore.h"
