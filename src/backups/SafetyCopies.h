#pragma once

#include "backups/BackupContents.h"
#include "platform/Path.h"
#include "platform/Result.h"

#include <optional>
#include <set>
#include <string>

namespace tavrik {

struct Mac;

/// Copies of the live Dock preferences and of the live Launchpad database, beside them and named like them with
/// ".pre-restore-backup" at the end, for as long as a restore is under way.
///
/// The Dock's is the file, byte by byte. The database's is one complete database file; when the live one cannot
/// be read as a database, it is the file as it stands, with its write-ahead log beside it under the name that
/// SQLite looks for. A new copy is complete and on stable storage before it takes an old one's place in one
/// step.
///
/// A live file that is empty, damaged or already what the backup holds is no reason to give up a good copy: an
/// earlier restore that failed left it, and it may be all there is. Such a copy is kept. Background thread;
/// blocks on the disk.
class SafetyCopies {
public:
    SafetyCopies(Mac& mac, MacPath dockPlist, MacPath launchpadDatabase);

    const MacPath& dockPlist() const { return m_dockCopy; }

    const MacPath& launchpadDatabase() const { return m_databaseCopy; }

    /// Copies both before `restored` takes their place. After a failure or a kill the live files are as they
    /// were, and each copy is the old one or the new one.
    Status make(const BackupContents& restored);

    /// Names that must stay when the database's folder is emptied.
    std::set<std::string> namesBesideDatabase() const;

    /// Fine when there are none. The error is that of the first one that cannot be removed.
    Status remove();

private:
    /// What a copy is to hold.
    struct Content {
        Bytes file;
        std::optional<Bytes> writeAheadLog;
    };

    using Wanted = Result<std::optional<Content>>; ///< nothing when no copy is to be made

    Wanted wantedOfDock(const BackupContents& restored) const;
    Wanted wantedOfDatabase(const BackupContents& restored) const;
    Result<std::optional<Content>> readDatabase(const MacPath& database) const;
    Status replaceDatabaseCopy(const Content& content);

    Mac& m_mac;
    const MacPath m_dockPlist;
    const MacPath m_database;
    const MacPath m_dockCopy;
    const MacPath m_databaseCopy;
    const MacPath m_databaseCopyLog;
};

} // namespace tavrik
