#pragma once

#include "backups/BackupContents.h"
#include "backups/SafetyCopies.h"
#include "platform/Path.h"
#include "platform/Result.h"

namespace tavrik {

class DockManager;
class PendingChangesManager;
class SettingsManager;
struct Mac;

/// Puts the two files of a backup in the place of the live ones, with copies of those beside them
/// (".pre-restore-backup") until it is done, empties the wrapper folder, and drops what is staged and what the
/// settings know of wrappers, selected icons and styles.
///
/// A failure or a kill at any moment leaves the live file, its copy, or both; repeating the restore finishes
/// it, and never takes a good copy's place with a live file that is missing, damaged, or what the restore
/// itself had written. A live file that is missing needs no copy. Background thread; blocks on the disk.
class BackupRestore {
public:
    BackupRestore(Mac& mac, SettingsManager& settings, DockManager& dock, PendingChangesManager& pendingChanges,
                  MacPath launchpadDatabase);

    /// `contents` has been checked. The error is that of the log line "❌ Failed to restore backup files: ".
    Status run(const BackupContents& contents);

    MacPath dockSafetyCopy() const { return m_safetyCopies.dockPlist(); }

    MacPath databaseSafetyCopy() const { return m_safetyCopies.launchpadDatabase(); }

private:
    Status replaceFiles(const BackupContents& contents);
    Status deleteDockPlist();
    Status clearDatabaseFolder();
    Status writeBack(const MacPath& file, const Bytes& content);
    void clearWrapperFolder();
    void clearSettings(const BackupContents& contents);

    Mac& m_mac;
    SettingsManager& m_settings;
    PendingChangesManager& m_pendingChanges;
    const MacPath m_dockPlist;
    const MacPath m_database;
    SafetyCopies m_safetyCopies;
};

} // namespace tavrik
