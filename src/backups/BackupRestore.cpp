#include "backups/BackupRestore.h"

#include "backups/FolderEmptying.h"
#include "changes/PendingChangesManager.h"
#include "model/SettingsManager.h"
#include "platform/AtomicFile.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/MainQueue.h"
#include "platform/PathRules.h"
#include "platform/PlainFolders.h"
#include "platform/PropertyList.h"
#include "platform/Threads.h"
#include "platform/Volume.h"
#include "system/DockManager.h"
#include "system/DockTiles.h"

#include <cerrno>
#include <set>
#include <string>
#include <utility>

namespace tavrik {

namespace {

/// Applications whose tile still leads to a wrapper: the backup was sealed without being cleaned.
std::set<std::string> wrapperTilesIn(const Bytes& dockPlist) {
    std::set<std::string> bundleIDs;
    Result<plist::Value> dock = plist::parse(dockPlist);
    if (!dock)
        return bundleIDs;
    for (const dock::Tile& tile : dock::appTiles(*dock)) {
        if (const std::string* url = tile.url(); url && isWrapperPath(MacPath(*url)))
            bundleIDs.insert(*tile.bundleID());
    }
    return bundleIDs;
}

} // namespace

BackupRestore::BackupRestore(Mac& mac, SettingsManager& settings, DockManager& dock,
                             PendingChangesManager& pendingChanges, MacPath launchpadDatabase)
    : m_mac(mac),
      m_settings(settings),
      m_pendingChanges(pendingChanges),
      m_dockPlist(dock.dockPlistPath()),
      m_database(std::move(launchpadDatabase)),
      m_safetyCopies(mac, m_dockPlist, m_database) {}

Status BackupRestore::run(const BackupContents& contents) {
    assertOffMainThread("A restore");
    if (Status replaced = replaceFiles(contents); !replaced) {
        log("❌ Failed to restore backup files: " + replaced.error().description);
        return replaced;
    }
    clearWrapperFolder();
    MainQueue::sync([this] { m_pendingChanges.clearAllPendingChanges(); });
    if (const Status removed = m_safetyCopies.remove(); removed)
        log("✅ Cleaned up safety backups");
    else
        log("ℹ️ Safety backup cleanup: " + removed.error().description);
    log("✅ Backup restored successfully");
    clearSettings(contents);
    MainQueue::sync([this] { m_pendingChanges.noteRestored(); });
    return Done{};
}

Status BackupRestore::replaceFiles(const BackupContents& contents) {
    // Before anything is changed: emptying must not reach a folder that somebody's link leads to.
    const MacPath folder = m_database.parent();
    if (Status plain = checkPlainFolders(m_mac.files, folder.parent(), folder); !plain)
        return plain;
    if (Status copied = m_safetyCopies.make(contents); !copied)
        return copied;
    if (Status deleted = deleteDockPlist(); !deleted)
        return deleted;
    if (Status cleared = clearDatabaseFolder(); !cleared)
        return cleared;
    Status written = writeBack(m_dockPlist, contents.dockPlist);
    return written ? writeBack(m_database, contents.launchpadDatabase) : written;
}

Status BackupRestore::deleteDockPlist() {
    Status removed = m_mac.files.remove(m_dockPlist);
    if (removed)
        log("🗑️ Deleted original dock plist");
    else if (removed.error().code == ENOENT)
        return Done{};
    return removed;
}

Status BackupRestore::clearDatabaseFolder() {
    const auto emptied = emptyFolder(m_mac.files, m_database.parent(), m_safetyCopies.namesBesideDatabase());
    if (!emptied) {
        log("⚠️ Could not list db folder contents: " + emptied.error().description);
    } else {
        for (const std::string& name : emptied->left)
            log("  ⚠️ Could not remove " + name);
        log("🧹 Cleared db folder before restore");
    }
    // SQLite would replay what is left of these into the new database.
    for (const char* ending : {"-wal", "-journal"}) {
        const MacPath journal = m_database.parent() / (m_database.name() + ending);
        const auto present = m_mac.files.attributes(journal, Links::dontFollow);
        if (present || present.error().code != ENOENT)
            return Error{journal.string() + " could not be removed", EEXIST};
    }
    return Done{};
}

Status BackupRestore::writeBack(const MacPath& file, const Bytes& content) {
    const MacPath folder = file.parent();
    if (!m_mac.files.exists(folder)) {
        if (Status created = createPlainFolder(m_mac.files, folder.parent(), folder); !created)
            return created;
    }
    if (Status written = writeAtomically(m_mac.files, file, content); !written)
        return written;
    const auto onDisk = m_mac.files.read(file);
    if (!onDisk)
        return onDisk.error();
    return *onDisk == content ? Status(Done{})
                              : Status(Error{file.string() + " differs from what was written"});
}

void BackupRestore::clearWrapperFolder() {
    const auto emptied = emptyFolder(m_mac.files, wrapperFolder(m_mac.volume.home()));
    if (!emptied) {
        log("⚠️ Could not list Tavrik folder contents: " + emptied.error().description);
        return;
    }
    for (const std::string& name : emptied->left)
        log("  ⚠️ Could not remove Tavrik app " + name);
    const std::size_t count = emptied->removed;
    log("🧹 Cleared ~/Applications/Tavrik folder (" + std::to_string(count) +
        (count == 1 ? " item)" : " items)"));
}

void BackupRestore::clearSettings(const BackupContents& contents) {
    if (m_settings.clearAfterRestore(wrapperTilesIn(contents.dockPlist)))
        log("🧹 Cleared TavrikMappings, SelectedIcons, and CurrentFontState from settings");
    else
        log("⚠️ Could not clear TavrikMappings, SelectedIcons, and CurrentFontState from settings");
}

} // namespace tavrik
