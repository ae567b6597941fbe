#include "backups/BackupManager.h"

#include "backups/BackupArchive.h"
#include "model/SettingsManager.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/MainQueue.h"
#include "platform/NotificationCenter.h"
#include "platform/PathComponent.h"
#include "platform/SqliteCopy.h"
#include "platform/Threads.h"
#include "system/AccessCheck.h"
#include "system/DatabaseManager.h"
#include "system/DockManager.h"

#include <utility>
#include <variant>

namespace tavrik {

namespace {

std::string restoreLine(BackupFault fault) {
    switch (fault) {
    case BackupFault::unreadable:
    case BackupFault::sealed:
        return "❌ Failed to decrypt backup";
    case BackupFault::noArchive:
        return "❌ Failed to extract backup archive";
    case BackupFault::noDockPlist:
        return "❌ Dock plist not found in backup";
    case BackupFault::noDatabase:
        return "❌ Launchpad database not found in backup";
    case BackupFault::damagedDockPlist:
    case BackupFault::damagedDatabase:
        break;
    }
    return "❌ Failed to restore backup files: " + inWords(fault);
}

std::vector<BackupListItem> itemsOf(const std::vector<BackupFolder::Entry>& entries) {
    constexpr std::uint64_t kKilobyte = 1000;
    std::vector<BackupListItem> items;
    items.reserve(entries.size());
    for (const BackupFolder::Entry& entry : entries)
        items.push_back({.id = entry.url.stem(),
                         .url = entry.url,
                         .date = entry.date,
                         .sizeInKB = static_cast<std::int64_t>((entry.size + kKilobyte - 1) / kKilobyte)});
    return items;
}

Error creationFailed(const std::string& reason) {
    log("❌ Backup creation failed: " + reason);
    return Error{reason + "."};
}

} // namespace

BackupManager::BackupManager(Mac& mac, SettingsManager& settings, DatabaseManager& database, DockManager& dock,
                             PendingChangesManager& pendingChanges, const FontReplacer& fonts,
                             NotificationCenter& notifications)
    : m_mac(mac),
      m_settings(settings),
      m_database(database),
      m_dock(dock),
      m_notifications(notifications),
      m_container(mac.machine, mac.random),
      m_folder(mac, settings.appSupportURL()),
      m_launchpadCleaning(mac, settings, fonts),
      m_dockCleaning(mac, settings, database, fonts),
      m_restore(mac, settings, dock, pendingChanges, database.launchpadDatabasePath()) {}

// What there is

std::vector<MacPath> BackupManager::listBackups() const {
    std::vector<MacPath> backups;
    for (BackupFolder::Entry& entry : m_folder.entries())
        backups.push_back(std::move(entry.url));
    return backups;
}

std::vector<BackupListItem> BackupManager::listItems() const {
    return itemsOf(m_folder.entries());
}

Result<std::vector<BackupListItem>> BackupManager::readItems() const {
    const auto entries = m_folder.read();
    if (!entries)
        return Error{"The backups cannot be looked at: " + entries.error().description + "."};
    return itemsOf(*entries);
}

Result<MacPath> BackupManager::find(const std::string& name) const {
    if (!isSafePathComponent(name))
        return Error{"That cannot be the name of a backup."};
    for (const MacPath& backup : listBackups())
        if (backup.name() == name || backup.stem() == name)
            return backup;
    return Error{"There is no backup named \"" + name + "\"."};
}

BackupReading BackupManager::readBackup(const MacPath& backup) const {
    return tavrik::readBackup(m_mac.files, m_container, backup);
}

std::optional<BackupKey> BackupManager::deriveBackupKey() const {
    return tavrik::deriveBackupKey(m_mac.machine);
}

void BackupManager::removeLeftovers() {
    m_launchpadCleaning.removeLeftovers();
    m_folder.removeLeftovers();
}

// A new one

Result<MacPath> BackupManager::createBackup(const std::set<MacPath>& spared) {
    assertOffMainThread("Taking a backup");
    auto snapshot = takeSnapshot(spared);
    if (const auto* fault = std::get_if<LiveStoresFault>(&snapshot))
        return Error{"No backup was made. " + fault->error.description};
    return std::get<MacPath>(std::move(snapshot));
}

std::variant<MacPath, LiveStoresFault> BackupManager::takeSnapshot(std::set<MacPath> spared) {
    log("📦 Creating backup of Dock and Launchpad files...");
    const MacPath& dockPlist = m_dock.dockPlistPath();
    const MacPath database = m_database.launchpadDatabasePath();
    auto live = readLiveStores(m_mac, dockPlist, database);
    if (auto* fault = std::get_if<LiveStoresFault>(&live))
        return std::move(*fault);

    // What is sealed is sound, whatever happens next: a kill must not leave it in doubt.
    const BackupReading contents = checkContents(cleaned(std::get<BackupContents>(std::move(live))));
    if (std::holds_alternative<BackupFault>(contents))
        return whyUnsound(m_mac, dockPlist, database);
    auto backup = write(std::get<BackupContents>(contents));
    if (!backup)
        return LiveStoresFault{.error = backup.error()};
    log("✅ Backup created successfully: " + backup->name());
    spared.insert(*backup);
    m_folder.rotate(m_settings.getBackupRetentionCount(), spared);
    return std::move(*backup);
}

BackupContents BackupManager::cleaned(BackupContents contents) {
    log("🧹 Cleaning Dock plist...");
    contents.dockPlist = m_dockCleaning.clean(std::move(contents.dockPlist));
    log("🧹 Cleaning Launchpad database...");
    contents.launchpadDatabase = m_launchpadCleaning.clean(std::move(contents.launchpadDatabase));
    return contents;
}

Result<MacPath> BackupManager::write(const BackupContents& contents) {
    const auto container = seal(contents);
    if (!container)
        return Error{"It could not be sealed."};
    const auto present = m_folder.read();
    if (!present)
        return creationFailed(present.error().description);
    if (present->empty())
        log("📌 Creating Original State backup");
    auto backup = m_folder.add(*container, present->empty());
    if (!backup)
        return creationFailed(backup.error().description);
    if (holds(*backup, contents))
        return backup;

    std::string reason = backup->string() + " does not hold what was written";
    if (const Status removed = m_mac.files.remove(*backup); !removed)
        reason += ", and could not be removed: " + removed.error().description;
    return creationFailed(reason);
}

std::optional<Bytes> BackupManager::seal(const BackupContents& contents) const {
    ArchiveMembers members;
    members[kDockMember] = contents.dockPlist;
    members[kLaunchpadMember] = contents.launchpadDatabase;
    auto archive = createArchive(std::move(members));
    if (!archive) {
        log("❌ Failed to create zip archive");
        return std::nullopt;
    }
    auto container = m_container.seal(std::move(*archive));
    if (!container)
        log("❌ Failed to encrypt backup");
    return container;
}

/// Read again from the disk, as a restore will. Equal bytes need no other check.
bool BackupManager::holds(const MacPath& backup, const BackupContents& contents) const {
    auto file = m_mac.files.read(backup);
    const auto archive = file ? m_container.open(std::move(*file)) : std::nullopt;
    auto members = archive ? extractArchive(*archive) : std::nullopt;
    return members && (*members)[kDockMember] == contents.dockPlist &&
           (*members)[kLaunchpadMember] == contents.launchpadDatabase;
}

Result<LayoutSummary> BackupManager::summaryOfLiveStores() {
    assertOffMainThread("Reading the live stores");
    auto live = readLiveStores(m_mac, m_dock.dockPlistPath(), m_database.launchpadDatabasePath());
    if (const auto* fault = std::get_if<LiveStoresFault>(&live))
        return fault->error;
    auto& contents = std::get<BackupContents>(live);
    auto copy = sqlite::openCopy(contents.launchpadDatabase);
    if (!copy)
        return Error{"The Launchpad database cannot be read: " + copy.error().description + "."};
    // A snapshot would hold it as it is, too, where it cannot be cleaned.
    ignoreFailure(m_launchpadCleaning.cleanInPlace(*copy));
    return summaryOf(m_dockCleaning.clean(std::move(contents.dockPlist)), *copy);
}

// Putting one back

Status BackupManager::restoreBackup(const MacPath& backup) {
    assertOffMainThread("Restoring a backup");
    log("🔄 Restoring backup from: " + backup.name());
    const BackupReading reading = readBackup(backup);
    if (const auto* fault = std::get_if<BackupFault>(&reading)) {
        log(restoreLine(*fault));
        return Error{inWords(*fault)};
    }
    if (Status access = checkAccess(m_mac, m_settings.appSupportURL()); !access)
        return access;
    if (Status kept = keepPresentState(backup); !kept)
        return kept;
    Status restored = m_restore.run(std::get<BackupContents>(reading));
    if (!restored) {
        return Error{"The restore failed: " + restored.error().description +
                     ". Restoring the same backup again finishes it; until then, files whose names end in "
                     "\".pre-restore-backup\" hold what was there before."};
    }
    MainQueue::sync([this] { m_notifications.post(kReloadApplicationsAfterBackupRestore); });
    return restored;
}

/// The restored backup stays where it is: it may be the oldest.
Status BackupManager::keepPresentState(const MacPath& restored) {
    const auto snapshot = takeSnapshot({restored});
    const auto* fault = std::get_if<LiveStoresFault>(&snapshot);
    if (fault && !fault->isNothingToKeep)
        return Error{"Nothing was changed, because the present state could not be kept. " +
                     fault->error.description};
    if (fault)
        log("⚠️ There is no sound present state to keep before the restore");
    return Done{};
}

} // namespace tavrik
