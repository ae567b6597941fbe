#include "model/SettingsManager.h"
#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/PathRules.h"
#include "platform/Threads.h"
#include "system/DatabaseManager.h"
#include "system/DockManager.h"
#include "system/LaunchpadManager.h"
#include "wrappers/TavrikAppManager.h"

#include <chrono>
#include <cstdint>

using namespace std::chrono_literals;

namespace tavrik {

namespace {

constexpr int kIndexAttempts = 15;
constexpr auto kAfterFirstRestart = 3000ms;
constexpr auto kBeforeDockEntry = 500ms;

std::string text(RowID row) {
    return std::to_string(static_cast<std::int64_t>(row));
}

/// Of two copies of an application the one that the catalogue shows; a path that is a wrapper's own says
/// nothing about the original.
MacPath originalOf(const ApplicationInfo& app, const WrapperRows::Row* original) {
    return isWrapperPath(app.path) && original ? original->path : app.path;
}

} // namespace

bool TavrikAppManager::createWrapper(const ApplicationInfo& app, const QImage& icon) {
    assertOffMainThread("The creation of a wrapper");
    log("\n=== CREATING TAVRIK APP ===");
    log("Name: " + app.name);
    log("Bundle ID: " + app.bundleID);
    log("Path: " + app.path.string());

    if (hasWrapper(app.bundleID)) {
        log("Found existing tavrik mapping, updating icon instead");
        return updateWrapperIcon(app, icon);
    }
    const std::optional<MacPath> wrapper = mayCreate(app);
    return wrapper && createAnew(app, icon, *wrapper);
}

bool TavrikAppManager::createAnew(const ApplicationInfo& app, const QImage& icon, const MacPath& wrapper) {
    static constexpr CleanUpLines kLines{"CLEANUP: Removing failed tavrik app and reverting to original",
                                         "Removed failed tavrik app wrapper",
                                         "Reset selected icon to original for "};

    // The original's row.
    const WrapperRows rows = m_index.rows(app.bundleID);
    const Row* original = rows.original(app.path);
    if (!original) {
        log("ERROR: No app with bundle ID " + app.bundleID + " found in database");
        return false;
    }
    log("Target app - RowID: " + text(original->entry.rowID) + ", Parent: " + text(original->entry.parentID) +
        ", Ordering: " + std::to_string(original->entry.ordering));
    recordHiddenApp(app, *original);

    // A fresh bundle with the icon on it.
    removeExisting(wrapper);
    if (!m_folder.build(wrapper, originalOf(app, original))) {
        cleanUp(app, wrapper, kLines);
        return false;
    }
    if (!setIcon(app, wrapper, icon))
        log("ERROR: Failed to set custom icon after 3 attempts");

    // Make Launchpad see it.
    registerWrapper(wrapper);
    m_launchpad.restartDock();
    m_mac.clock.sleep(kAfterFirstRestart);
    const std::optional<RowID> wrapperRow = waitUntilIndexed(app.bundleID, kIndexAttempts);
    if (!wrapperRow) {
        log("ERROR: Tavrik app was not indexed by Launchpad");
        cleanUp(app, wrapper, kLines);
        return false;
    }

    // Put it in the original's place.
    if (!m_exchange.swapIn(app.bundleID, original->entry.rowID, *wrapperRow)) {
        log("ERROR: Failed to perform visibility swap");
        cleanUp(app, wrapper, kLines);
        return false;
    }
    log("Successfully swapped to tavrik app");
    if (!saveMapping(app, *original, *wrapperRow, Then::moreToDo)) {
        cleanUp(app, wrapper, kLines);
        return false;
    }

    // The same in the Dock.
    if (m_dock.isAppInDock(app.bundleID)) {
        log("App is in Dock, updating bookmark...");
        m_mac.clock.sleep(kBeforeDockEntry);
        registerWrapper(wrapper);
        m_folder.addWarning();
        if (!m_dock.updateDockEntry(app.bundleID, wrapper))
            log("WARNING: Failed to update Dock bookmark");
    }
    m_exchange.finish(app.bundleID);

    m_launchpad.restartDock();
    log("=== END TAVRIK APP CREATION ===\n");
    return true;
}

bool TavrikAppManager::batchCreateWrapper(const ApplicationInfo& app, const QImage& icon) {
    assertOffMainThread("The creation of a wrapper");
    log("  Batch creating tavrik wrapper for: " + app.name);
    const std::optional<MacPath> wrapper = mayCreate(app);
    if (!wrapper)
        return false;

    // A wrapper that is swapped in keeps its bundle.
    if (!hasWrapper(app.bundleID)) {
        const WrapperRows rows = isWrapperPath(app.path) ? m_index.rows(app.bundleID) : WrapperRows();
        removeExisting(*wrapper);
        if (!m_folder.build(*wrapper, originalOf(app, rows.original(app.path)))) {
            ignoreFailure(m_folder.remove(*wrapper));
            return false;
        }
    }
    if (!setIcon(app, *wrapper, icon))
        log("    WARNING: Failed to set custom icon after 3 attempts");
    registerWrapper(*wrapper);
    m_folder.addWarning();
    return true;
}

bool TavrikAppManager::completeCreation(const ApplicationInfo& app) {
    static constexpr CleanUpLines kLines{"    CLEANUP: Removing failed tavrik app and reverting to original",
                                         "    Removed failed tavrik app wrapper",
                                         "    Reset selected icon to original for "};
    static constexpr CleanUpLines kAfterSwapLines{"    CLEANUP: Removing failed tavrik app after swap failure",
                                                  nullptr, nullptr};

    assertOffMainThread("The creation of a wrapper");
    log("  Completing creation for: " + app.name);
    const std::optional<MacPath> wrapper = refuseLinks(app);
    if (!wrapper)
        return false;
    if (hasWrapper(app.bundleID))
        return true;

    // The original's row.
    const WrapperRows rows = m_index.rows(app.bundleID);
    const Row* original = rows.original(app.path);
    if (!original) {
        log("    ERROR: No app with bundle ID " + app.bundleID + " found in database");
        cleanUp(app, *wrapper, kLines);
        return false;
    }
    recordHiddenApp(app, *original);

    // The wrapper's.
    const std::optional<RowID> wrapperRow = waitUntilIndexed(app.bundleID, kIndexAttempts);
    if (!wrapperRow) {
        log("    ERROR: Tavrik app was not indexed by Launchpad after extended wait");
        cleanUp(app, *wrapper, kLines);
        return false;
    }

    // One in the other's place.
    if (!m_exchange.swapIn(app.bundleID, original->entry.rowID, *wrapperRow)) {
        log("    ERROR: Failed to perform visibility swap");
        cleanUp(app, *wrapper, kAfterSwapLines);
        return false;
    }
    log("    Successfully swapped to tavrik app");
    const bool isInDock = m_dock.isAppInDock(app.bundleID);
    if (!saveMapping(app, *original, *wrapperRow, isInDock ? Then::moreToDo : Then::finished)) {
        cleanUp(app, *wrapper, kAfterSwapLines);
        return false;
    }

    // The same in the Dock.
    if (isInDock) {
        registerWrapper(*wrapper);
        if (!m_dock.updateDockEntry(app.bundleID, *wrapper))
            log("    WARNING: Failed to update Dock bookmark");
    }
    m_exchange.finish(app.bundleID);
    return true;
}

/// Where the wrapper may be built. Nothing, with a log line and nothing changed, when it must not. Rows that an
/// unfinished creation or removal left exchanged are back in their places afterwards.
std::optional<MacPath> TavrikAppManager::mayCreate(const ApplicationInfo& app) {
    if (app.isIOSApp || app.isUnsupportedApp) {
        log("ERROR: Refusing to create a tavrik app for " + app.bundleID + ": not supported");
        return std::nullopt;
    }
    std::optional<MacPath> wrapper = refuseLinks(app);
    if (!wrapper)
        return std::nullopt;
    if (m_folder.belongsToAnother(*wrapper, app.bundleID)) {
        log("ERROR: Refusing to create a tavrik app for " + app.bundleID + ": another app's stands at " +
            wrapper->string());
        return std::nullopt;
    }
    const auto missing = m_database.missingColumns();
    if (missing && !missing->empty()) {
        std::string names;
        for (const std::string& name : *missing)
            names += (names.empty() ? "" : ", ") + name;
        log("ERROR: Refusing to create a tavrik app for " + app.bundleID + ": the Launchpad database lacks " +
            names);
        return std::nullopt;
    }
    if (m_exchange.isUnfinished(app.bundleID)) {
        if (!m_exchange.undoUnfinished(app.bundleID))
            return std::nullopt;
        forget(app.bundleID, true);
    }
    return wrapper;
}

void TavrikAppManager::removeExisting(const MacPath& wrapper) {
    if (!m_folder.exists(wrapper))
        return;
    if (const Status removed = m_folder.remove(wrapper); removed)
        log("Removed existing tavrik app file");
    else
        log("Warning: Failed to remove existing tavrik app: " + removed.error().description);
}

void TavrikAppManager::recordHiddenApp(const ApplicationInfo& app, const Row& original) {
    if (!app.bundleID.starts_with("com.apple.") || !original.entry.isHidden())
        return;
    m_settings.saveHiddenFlagApp(app.bundleID, *original.entry.flags, original.entry.rowID, std::nullopt, true);
    log("Recorded hidden flag app before creation: " + app.bundleID);
}

/// Where nothing else is left to do, the record of the exchange goes in the same write. False when the settings
/// could not be written.
bool TavrikAppManager::saveMapping(const ApplicationInfo& app, const Row& original, RowID wrapper, Then then) {
    const auto hidden = m_settings.getHiddenFlagApp(app.bundleID);
    if (then == Then::finished && !hidden)
        m_settings.saveMappingAndEndSwap(app.bundleID, original.entry.rowID, wrapper);
    else
        m_settings.saveMapping(app.bundleID, original.entry.rowID, wrapper);
    if (!m_settings.getMapping(app.bundleID)) {
        log("ERROR: Failed to save the mapping of " + app.bundleID);
        return false;
    }
    if (hidden) {
        m_settings.saveHiddenFlagApp(app.bundleID, hidden->originalFlags, hidden->originalRowID, wrapper,
                                     hidden->wasHiddenFlag);
        log("Updated hidden flag app record with tavrikRowID: " + text(wrapper));
    }
    return true;
}

/// The rows of a swap whose mapping could not be saved go back first, and so does a tile that an unfinished
/// creation had repointed.
void TavrikAppManager::cleanUp(const ApplicationInfo& app, const MacPath& wrapper, const CleanUpLines& lines) {
    log(lines.start);
    const bool isBack = m_exchange.undoUnfinished(app.bundleID);
    ignoreFailure(restoreDock(app, false));
    const Status removed = m_folder.remove(wrapper);
    if (!removed)
        log("Warning: Failed to remove tavrik app file: " + removed.error().description);
    else if (lines.removed)
        log(lines.removed);
    m_folder.removeWarning(wrapper);
    m_settings.setSelectedIcon(app.bundleID, std::nullopt);
    if (lines.reset)
        log(lines.reset + app.bundleID);
    forget(app.bundleID, isBack);
}

} // namespace tavrik
