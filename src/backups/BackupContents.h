#pragma once

#include "platform/Bytes.h"
#include "platform/Path.h"

#include <string>
#include <variant>

namespace tavrik {

class BackupContainer;
class FileManager;

/// The two files of a backup.
struct BackupContents {
    Bytes dockPlist;
    Bytes launchpadDatabase;
};

/// Why a backup is of no use, in the order in which it is looked at.
enum class BackupFault {
    unreadable,  ///< the file cannot be read
    sealed,      ///< damaged, cut short, or made on another Mac
    noArchive,   ///< what was sealed is no archive
    noDockPlist, ///< a member is missing
    noDatabase,
    damagedDockPlist, ///< a member is no property list of a dictionary
    damagedDatabase,  ///< a member is no database, has not Launchpad's tables, or fails SQLite's check
};

/// A sentence for a person: what is wrong with it, and what to do.
std::string inWords(BackupFault fault);

using BackupReading = std::variant<BackupContents, BackupFault>;

/// Opens a backup and checks what is in it as far as a restore relies on it, SQLite's integrity check included.
/// Container and archive log their own lines. Changes nothing; leaves no plain copy. Background thread; blocks
/// on the disk.
BackupReading readBackup(const FileManager& files, const BackupContainer& container, const MacPath& backup);

/// The check of the contents alone, for what did not come from a file.
BackupReading checkContents(BackupContents contents);

} // namespace tavrik
