#pragma once

#include "backups/BackupContainer.h"
#include "backups/BackupContents.h"
#include "backups/BackupFolder.h"
#include "backups/BackupKey.h"
#include "backups/BackupRestore.h"
#include "backups/BackupSummary.h"
#include "backups/DockCleaning.h"
#include "backups/LaunchpadCleaning.h"
#include "backups/LiveStores.h"
#include "changes/ReloadNotifications.h"
#include "platform/Bytes.h"
#include "platform/Date.h"
#include "platform/Path.h"
#include "platform/Result.h"

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tavrik {

class DatabaseManager;
class DockManager;
class FontReplacer;
class NotificationCenter;
class PendingChangesManager;
class SettingsManager;
struct Mac;

/// A row of the list of backups.
struct BackupListItem {
    std::string id; ///< the file's name without its extension: "Original State", "2025-03-14_09-26-53"
    MacPath url;
    Date date;                 ///< of creation
    std::int64_t sizeInKB = 0; ///< thousands of bytes, rounded up

    bool operator==(const BackupListItem&) const = default;
};

/// Keeps sealed snapshots of the Dock's preferences and of the Launchpad database as they would be without the
/// program, and puts one back. The first ever taken is kept for good as "Original State"; the others rotate.
///
/// Background thread only: blocks on the disk. Not re-entrant, and not beside an apply. Every failure is
/// logged; the answers say the same in a sentence. A kill leaves every earlier backup, and the new one whole or
/// not at all.
class BackupManager {
public:
    BackupManager(Mac& mac, SettingsManager& settings, DatabaseManager& database, DockManager& dock,
                  PendingChangesManager& pendingChanges, const FontReplacer& fonts,
                  NotificationCenter& notifications);

    const MacPath& backupsBaseURL() const { return m_folder.path(); }

    /// Takes a snapshot now, opens it again and compares, and rotates; the new one is spared too. The new file;
    /// an error when there is none or when it does not hold what was sealed. A store that is missing, empty or
    /// damaged is an error: a backup that could not be restored is none. `spared` outlives the rotation.
    Result<MacPath> createBackup(const std::set<MacPath>& spared = {});

    /// The oldest first.
    std::vector<MacPath> listBackups() const;
    std::vector<BackupListItem> listItems() const;
    /// The same, with a sentence where the folder, or a backup in it, cannot be looked at.
    Result<std::vector<BackupListItem>> readItems() const;

    /// The backup of this name, with or without its extension. The error is a sentence; so it is for a name
    /// that could lead out of the folder.
    Result<MacPath> find(const std::string& name) const;

    /// Applies the retention rule now.
    void rotateBackups(std::int64_t keepCount) { m_folder.rotate(keepCount, {}); }

    /// What a backup holds, checked as a restore checks it.
    BackupReading readBackup(const MacPath& backup) const;

    /// What stands where now, as a backup would hold it: to be looked at. Makes no file, so that it may run
    /// beside a program that takes a snapshot. The error is a sentence.
    Result<LayoutSummary> summaryOfLiveStores();

    /// Puts a backup back. The live state goes into a snapshot of its own first, unless its stores are missing
    /// or damaged; when that snapshot cannot be taken for another reason, nothing is changed. The caller
    /// restarts the Dock. See BackupRestore for what a failure leaves.
    Status restoreBackup(const MacPath& backup);

    Bytes cleanLaunchpadDatabase(Bytes database) { return m_launchpadCleaning.clean(std::move(database)); }

    /// Cleans a copy in memory, to be looked at. False on any fault, the copy as it was.
    [[nodiscard]] bool cleanInPlace(sqlite::Connection& copy) { return m_launchpadCleaning.cleanInPlace(copy); }

    Bytes cleanDockPlist(Bytes dockPlist) { return m_dockCleaning.clean(std::move(dockPlist)); }

    std::optional<BackupKey> deriveBackupKey() const;

    /// Removes plain copies and unfinished files that a killed snapshot left. To be called at the start of a
    /// program that may write.
    void removeLeftovers();

private:
    std::variant<MacPath, LiveStoresFault> takeSnapshot(std::set<MacPath> spared);
    BackupContents cleaned(BackupContents contents);
    std::optional<Bytes> seal(const BackupContents& contents) const;
    Result<MacPath> write(const BackupContents& contents);
    bool holds(const MacPath& backup, const BackupContents& contents) const;
    Status keepPresentState(const MacPath& restored);

    Mac& m_mac;
    SettingsManager& m_settings;
    DatabaseManager& m_database;
    DockManager& m_dock;
    NotificationCenter& m_notifications;
    BackupContainer m_container;
    BackupFolder m_folder;
    LaunchpadCleaning m_launchpadCleaning;
    DockCleaning m_dockCleaning;
    BackupRestore m_restore;
};

} // namespace tavrik
