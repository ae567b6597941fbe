#include "maintenance/OrphanedWrappers.h"

#include "changes/apply/ApplyServices.h"
#include "maintenance/MissingVolume.h"
#include "model/SettingsManager.h"
#include "platform/Bookmarks.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/PathRules.h"
#include "platform/PlainFolders.h"
#include "platform/Threads.h"
#include "platform/Volume.h"
#include "system/DatabaseManager.h"
#include "system/DockManager.h"
#include "wrappers/TavrikAppManager.h"
#include "wrappers/WrapperFolder.h"

#include <algorithm>
#include <cerrno>
#include <map>
#include <optional>
#include <string>

namespace tavrik {

namespace {

/// Of the application that a wrapper stands for. Nothing for what no wrapper is: a link, a bundle without the
/// link, or one whose link was never made by the program.
std::optional<MacPath> originalContents(const FileManager& files, const MacPath& wrapper) {
    const auto present = files.attributes(wrapper, Links::dontFollow);
    if (!present || present->type != FileType::folder)
        return std::nullopt;
    const auto target = files.readLink(wrapper / "Contents");
    return target && target->starts_with('/') ? std::optional(MacPath(*target)) : std::nullopt;
}

/// A volume that is not mounted comes back, and a disk that fails says nothing.
bool isGone(const FileManager& files, const MacPath& path) {
    const auto present = files.attributes(path);
    const bool isMissing = !present && (present.error().code == ENOENT || present.error().code == ENOTDIR);
    return isMissing && !isOnMissingVolume(files, path);
}

/// The originals' rows of all swaps that the settings know of, by bundle identifier.
std::map<std::string, RowID> recordedSwaps(SettingsManager& settings) {
    std::map<std::string, RowID> rows;
    for (const auto& [bundleID, mapping] : settings.getAllMappings())
        rows.emplace(bundleID, mapping.originalRowID);
    for (const auto& [bundleID, record] : settings.getAllSwapRecords())
        rows.insert_or_assign(bundleID, record.originalRowID);
    return rows;
}

/// The application that a wrapper stood for.
struct Original {
    std::string bundleID;
    bool isThere = false; ///< it was moved: its row leads to it as before
};

/// Told by the rows in Launchpad and by the tiles of the Dock that lead to the wrapper or to where the
/// original was. Nothing when they say nothing, or the settings know no swap of that application.
std::optional<Original> originalOf(const ApplyServices& with, const MacPath& wrapper, const MacPath& path) {
    const auto tiles = with.dock.dockApps();
    for (const auto& [bundleID, row] : recordedSwaps(with.settings)) {
        Original original{.bundleID = bundleID};
        bool isIt = std::ranges::find(tiles, DockApp{bundleID, wrapper}) != tiles.end();
        for (const DatabaseAppEntry& entry : with.database.appEntries(bundleID)) {
            const auto recorded = with.mac.bookmarks.recordedPath(entry.bookmarkData);
            isIt = isIt || (recorded && (*recorded == wrapper || *recorded == path));
            const auto resolved = with.mac.bookmarks.resolve(entry.bookmarkData);
            original.isThere = original.isThere || (entry.rowID == row && resolved &&
                                                    !isWrapperPath(*resolved) && !isTrashPath(*resolved));
        }
        if (isIt)
            return original;
    }
    return std::nullopt;
}

/// The records go before the wrapper: without them a wrapper is still known as orphaned at the next start, but
/// without a wrapper nothing would look for the records.
void forgetSwap(const ApplyServices& with, const MacPath& wrapper, const MacPath& contents) {
    const MacPath path = contents.parent();
    const auto original = originalOf(with, wrapper, path);
    if (!original)
        return;
    if (original->isThere) {
        ApplicationInfo app;
        app.bundleID = original->bundleID;
        app.name = wrapper.stem();
        app.path = path;
        ignoreFailure(with.wrappers.removeWrapper(app, RestartDock::no));
        return;
    }
    // So that the tile is as it was before: it works again should the application be installed anew.
    if (with.settings.getDockBookmark(original->bundleID))
        ignoreFailure(with.dock.restoreDockEntry(original->bundleID));
    with.settings.forgetSwap(original->bundleID);
}

} // namespace

std::vector<MacPath> orphanedWrappers(const ApplyServices& with) {
    const FileManager& files = with.mac.files;
    const MacPath folder = wrapperFolder(with.mac.volume.home());
    std::vector<MacPath> orphaned;
    const auto names = checkPlainFolders(files, with.mac.volume.home(), folder)
                           ? files.list(folder)
                           : Result<std::vector<std::string>>(Error{});
    for (const std::string& name : names ? *names : std::vector<std::string>()) {
        const MacPath wrapper = folder / name;
        const auto contents = wrapper.extension() == "app" ? originalContents(files, wrapper) : std::nullopt;
        if (contents && (isGone(files, *contents) || isTrashPath(*contents)))
            orphaned.push_back(wrapper);
    }
    return orphaned;
}

void removeOrphanedWrappers(const ApplyServices& with, const std::vector<MacPath>& wrappers) {
    assertOffMainThread("The removal of orphaned wrappers");
    WrapperFolder folder(with.mac);
    for (const MacPath& wrapper : wrappers) {
        const auto contents = originalContents(with.mac.files, wrapper);
        if (!contents || folder.isLink(wrapper))
            continue;
        forgetSwap(with, wrapper, *contents);
        folder.removeWarning(wrapper);
        if (const Status removed = folder.remove(wrapper); !removed)
            log("⚠️ Could not remove " + wrapper.string() + ": " + removed.error().description);
        else
            log("🧹 Deleted orphaned wrapper: " + wrapper.stem());
    }
}

} // namespace tavrik
