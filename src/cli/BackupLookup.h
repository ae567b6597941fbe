#pragma once

#include "backups/BackupManager.h"
#include "platform/Date.h"
#include "platform/Result.h"

#include <string>
#include <vector>

namespace tavrik {

class Companion;

/// The backups in the order in which a person looks for one: the newest first, and "Original State" at the end.
/// The error is a sentence.
Result<std::vector<BackupListItem>> listedBackups(Companion& companion);

/// The backup that a person names. The error is a sentence that names the nearest ones.
Result<BackupListItem> findBackup(Companion& companion, const std::string& name);

bool isOriginalState(const BackupListItem& backup);

/// A name as it is typed at a shell: in quotes where it has a blank.
std::string typed(const std::string& name);

/// "2025-03-14 09:26:53", the time of this machine.
std::string localText(Date date);

/// "180 KB", "1.2 MB".
std::string sizeText(std::int64_t kilobytes);

} // namespace tavrik
