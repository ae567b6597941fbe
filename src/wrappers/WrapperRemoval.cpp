#include "model/SettingsManager.h"
#include "platform/Log.h"
#include "platform/PathRules.h"
#include "platform/Threads.h"
#include "system/DockManager.h"
#include "system/LaunchpadManager.h"
#include "wrappers/TavrikAppManager.h"

#include <algorithm>

namespace tavrik {

bool TavrikAppManager::removeWrapper(const ApplicationInfo& app, RestartDock restartDock) {
    assertOffMainThread("The removal of a wrapper");
    log("\n=== REMOVING TAVRIK APP ===");
    log("Name: " + app.name);
    log("Bundle ID: " + app.bundleID);
    const std::optional<MacPath> wrapper = refuseLinks(app);
    if (!wrapper)
        return false;

    const std::optional<TavrikMapping> mapping = m_settings.getMapping(app.bundleID);
    if (!mapping)
        log("No tavrik mapping found for " + app.bundleID);

    // The original back to its place. After a kill the record tells what is left to do.
    const bool isRepeat = m_exchange.isUnfinished(app.bundleID);
    bool isBack = true;
    if (isRepeat)
        isBack = m_exchange.undoUnfinished(app.bundleID);
    else if (mapping)
        isBack = swapBack(app, *mapping);

    // And in the Dock.
    const bool isDockRestored = restoreDock(app, mapping && !isRepeat);

    // What remembers the wrapper, then the wrapper. The record goes last, and stays when the rows are not back.
    if (mapping)
        m_settings.removeMapping(app.bundleID);
    if (m_settings.getSelectedIcon(app.bundleID))
        m_settings.setSelectedIcon(app.bundleID, std::nullopt);
    m_folder.removeWarning(*wrapper);
    const bool wasThere = m_folder.exists(*wrapper);
    const Status removed = m_folder.remove(*wrapper);
    if (!removed)
        log("Warning: Failed to remove tavrik app file: " + removed.error().description);
    else if (wasThere)
        log("Removed tavrik app file");
    forget(app.bundleID, isBack);

    if (restartDock == RestartDock::yes)
        m_launchpad.restartDock();
    log("=== END TAVRIK APP REMOVAL ===\n");
    return isBack && isDockRestored && removed;
}

/// Of several wrapper rows the one that was swapped in. A hidden one is swapped back for hidden-flag
/// applications alone: its flag came from the original.
const WrapperRows::Row* TavrikAppManager::rowToSwapBack(const WrapperRows& rows, const TavrikMapping& mapping,
                                                        const std::optional<HiddenFlagApp>& hidden) const {
    if (hidden && hidden->tavrikRowID) {
        if (const Row* recorded = rows.wrapper(*hidden->tavrikRowID))
            return recorded;
    }
    const Row* mapped = rows.wrapper(mapping.tavrikRowID);
    if (mapped && (hidden || !mapped->entry.isHidden()))
        return mapped;
    return hidden ? rows.anyWrapper() : rows.visibleWrapper();
}

bool TavrikAppManager::swapBack(const ApplicationInfo& app, const TavrikMapping& mapping) {
    const std::optional<HiddenFlagApp> hidden = m_settings.getHiddenFlagApp(app.bundleID);
    if (hidden)
        log("Using special removal for hidden flag app: " + app.bundleID);

    const WrapperRows rows = m_index.rows(app.bundleID);
    const Row* mapped = rows.original(mapping.originalRowID);
    const Row* original = mapped ? mapped : rows.original(app.path);
    const Row* wrapper = rowToSwapBack(rows, mapping, hidden);
    if (!original)
        log("ERROR: No original app found to restore");
    else if (!wrapper)
        log("No visible tavrik app found to swap");
    // A bundle that is gone leaves its row, and the application's place is still to be given back.
    if (rows.originals.empty() || rows.wrappers.empty())
        return m_exchange.swapBackIfThere(app.bundleID, mapping.originalRowID, mapping.tavrikRowID);
    if (!original || !wrapper)
        return false;
    if (!m_exchange.swapBack(app.bundleID, original->entry.rowID, wrapper->entry.rowID)) {
        log("ERROR: Failed to swap back to original app");
        return false;
    }
    log("Successfully swapped back to original app");
    return true;
}

/// Also after a kill, and for a wrapper that was never swapped in: then only a tile that was really repointed
/// is touched.
bool TavrikAppManager::dockNeedsRestoring(const std::string& bundleID, bool isSwapped) const {
    const std::vector<DockApp> apps = m_dock.dockApps();
    const auto tile =
        std::find_if(apps.begin(), apps.end(), [&](const DockApp& each) { return each.bundleID == bundleID; });
    if (tile == apps.end())
        return false;
    return isSwapped || m_settings.getDockBookmark(bundleID) || isWrapperPath(tile->path);
}

bool TavrikAppManager::restoreDock(const ApplicationInfo& app, bool isSwapped) {
    if (!dockNeedsRestoring(app.bundleID, isSwapped))
        return true;
    log("App is in Dock, restoring original...");
    if (m_dock.restoreDockEntry(app.bundleID)) {
        log("Successfully restored Dock entry");
        return true;
    }
    log("Normal restoration failed, attempting force update...");
    const WrapperRows rows = m_index.rows(app.bundleID);
    const Row* original = rows.original(app.path);
    if (m_dock.forceRestoreDockEntry(app.bundleID, original ? original->path : app.path)) {
        log("Successfully force-updated Dock entry to original app");
        return true;
    }
    log("WARNING: Failed to restore Dock entry even with force update");
    return false;
}

} // namespace tavrik
