#include "maintenance/OrphanedIcons.h"

#include "changes/PendingChangesManager.h"
#include "changes/apply/ApplyServices.h"
#include "icons/IconStore.h"
#include "icons/IconSweep.h"
#include "maintenance/InstalledBundles.h"
#include "maintenance/MissingVolume.h"
#include "model/SettingsManager.h"
#include "model/catalogue/AppManager.h"
#include "platform/Bookmarks.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/MainQueue.h"
#include "platform/PathComponent.h"
#include "platform/PathRules.h"
#include "platform/PlainFolders.h"
#include "platform/SqliteCopy.h"
#include "platform/Volume.h"
#include "system/DatabaseManager.h"
#include "system/Trimmed.h"

#include <cstdint>
#include <map>
#include <optional>
#include <set>

namespace tavrik {

namespace {

using BundleIDs = std::set<std::string>;

constexpr const char* kRows = "SELECT bundleid, bookmark FROM apps WHERE bundleid IS NOT NULL";

/// A row that cannot be understood says nothing against its application.
bool mayBeInstalled(const Mac& mac, const std::optional<Bytes>& bookmark) {
    const auto recorded = bookmark ? mac.bookmarks.recordedPath(*bookmark) : Result<MacPath>(Error{});
    if (!recorded)
        return true;
    const auto path = mac.bookmarks.resolve(*bookmark);
    if (!path)
        return isOnMissingVolume(mac.files, *recorded);
    return !isWrapperPath(*path) && !isTrashPath(*path);
}

/// Those whose rows lead to them, listed or not. Nothing when the rows cannot be read to the end.
std::optional<BundleIDs> knownToLaunchpad(const ApplyServices& with) {
    const HostPath file = with.mac.volume.hostPath(with.database.launchpadDatabasePath());
    const auto bytes = file.empty() ? Result<Bytes>(Error{}) : sqlite::copyOf(file);
    auto copy = bytes ? sqlite::openCopy(*bytes) : Result<sqlite::Connection>(bytes.error());
    auto rows = copy ? copy->prepare(kRows) : sqlite::Statement();
    if (!rows)
        return std::nullopt;
    BundleIDs known;
    sqlite::Step step = rows.step();
    for (; step == sqlite::Step::row; step = rows.step()) {
        const std::string bundleID = trimmed(rows.text(0).value_or(""));
        if (!known.contains(bundleID) && mayBeInstalled(with.mac, rows.blob(1)))
            known.insert(bundleID);
    }
    return step == sqlite::Step::done ? std::optional(std::move(known)) : std::nullopt;
}

/// What is staged for an application names its icons.
BundleIDs withStagedIcons(PendingChangesManager& pendingChanges) {
    BundleIDs staged;
    MainQueue::sync([&] {
        for (const auto& [bundleID, change] : pendingChanges.staged().pendingChanges)
            staged.insert(bundleID);
        for (const auto& [bundleID, marked] : pendingChanges.staged().markedForDeletion)
            staged.insert(bundleID);
    });
    return staged;
}

/// Whose icons are kept. Nothing when that cannot be told.
std::optional<BundleIDs> inUse(const ApplyServices& with) {
    const auto apps = with.apps.loadApplications();
    auto bundleIDs = apps.empty() ? std::nullopt : knownToLaunchpad(with);
    if (!bundleIDs)
        return std::nullopt;
    for (const ApplicationInfo& app : apps)
        bundleIDs->insert(app.bundleID);
    bundleIDs->merge(withStagedIcons(with.pendingChanges));
    bundleIDs->merge(installedBundles(with.mac));
    return bundleIDs;
}

/// The folders that a store of icons makes, by application.
std::vector<MacPath> iconFolders(const FileManager& files, const MacPath& supportFolder, const MacPath& base) {
    const auto names = checkPlainFolders(files, supportFolder, base)
                           ? files.list(base)
                           : Result<std::vector<std::string>>(Error{});
    std::vector<MacPath> folders;
    for (const std::string& name : names ? *names : std::vector<std::string>()) {
        const auto entry = files.attributes(base / name, Links::dontFollow);
        const bool isFolder = entry && entry->type == FileType::folder;
        if (isFolder && isSafePathComponent(name) && !name.starts_with('.'))
            folders.push_back(base / name);
    }
    return folders;
}

} // namespace

OrphanedIcons orphanedIcons(const ApplyServices& with) {
    OrphanedIcons orphaned;
    const auto kept = inUse(with);
    if (!kept)
        return orphaned;
    orphaned.caches = iconFolders(with.mac.files, with.settings.appSupportURL(), with.icons.iconCacheURL());
    std::erase_if(orphaned.caches, [&](const MacPath& folder) { return kept->contains(folder.name()); });
    for (const auto& [bundleID, index] : with.settings.getAllSelectedIcons()) {
        if (!kept->contains(bundleID))
            orphaned.selectedIcons.push_back(bundleID);
    }
    return orphaned;
}

void cleanUpOrphanedIcons(const ApplyServices& with) {
    log("🧹 Checking for orphaned icon caches...");
    const OrphanedIcons orphaned = orphanedIcons(with);
    std::size_t deleted = 0;
    for (const MacPath& folder : orphaned.caches) {
        if (const Status removed = removeIconFolder(with.mac.files, with.iconCache, folder); !removed) {
            log("⚠️ Could not remove " + folder.string() + ": " + removed.error().description);
            continue;
        }
        log("  Deleted icon cache for: " + folder.name());
        ++deleted;
    }

    std::map<std::string, std::optional<std::int64_t>> none;
    for (const std::string& bundleID : orphaned.selectedIcons)
        none.emplace(bundleID, std::nullopt);
    if (!none.empty())
        with.settings.setSelectedIcons(none);
    for (const auto& [bundleID, index] : none)
        log("  Removed selected icon entry for: " + bundleID);
    log("🧹 Cleaned up " + std::to_string(deleted) + " orphaned icon cache folders");
    log("🧹 Cleaned up " + std::to_string(none.size()) + " orphaned selected icon entries");
}

} // namespace tavrik
