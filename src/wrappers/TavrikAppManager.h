#pragma once

#include "model/ApplicationInfo.h"
#include "model/DatabaseAppEntry.h"
#include "model/SettingsRecords.h"
#include "wrappers/PlacementExchange.h"
#include "wrappers/WrapperFolder.h"
#include "wrappers/WrapperIndex.h"

#include <QImage>

#include <optional>

namespace tavrik {

class DatabaseManager;
class DockManager;
class IconManager;
class IconSettingsManager;
class LaunchpadManager;
class SettingsManager;
struct Mac;

enum class RestartDock { no, yes };

/// Builds, registers, swaps in, updates and removes the wrapper bundles in "~/Applications/Tavrik". A wrapper
/// is a folder of links to the original's entries that carries a custom icon; the originals are never written
/// to.
///
/// Everything is synchronous, waits for seconds, and runs on a background thread only. The mapping in the
/// settings marks an application as swapped: it is written after a successful swap and deleted by every
/// clean-up and removal.
///
/// A kill at any moment leaves both stores readable, and a repeat of the same call reaches its end state: what
/// a creation or removal had exchanged is known from the record on disk (see PlacementExchange), is put back
/// first, and everything is then done anew. `isUnfinished` tells that a repeat is needed.
///
/// Applications that cannot be restyled are refused a creation. Applications whose wrapper has no safe file
/// name, or whose wrapper or wrapper folder is a symbolic link, are refused every operation. Both with a log
/// line and nothing changed.
class TavrikAppManager {
public:
    TavrikAppManager(Mac& mac, SettingsManager& settings, DatabaseManager& database, DockManager& dock,
                     IconManager& icons, LaunchpadManager& launchpad, IconSettingsManager& iconSettings);

    const MacPath& tavrikAppsURL() const { return m_folder.path(); }

    /// Makes the wrapper folder; fine when it is there. False, with a log line, on failure.
    bool createTavrikFolder() { return m_folder.create(); }

    /// Where an application's wrapper stands, existing or not: under the original's own file name, which is
    /// what the original is found by, and not under its title, which people and styled fonts change. Nothing
    /// when that cannot be a file name.
    std::optional<MacPath> wrapperPath(const ApplicationInfo& app) const;

    /// Whether the application is swapped, with nothing left to do.
    bool hasWrapper(const std::string& bundleID) const;

    /// Whether a bundle of this application's stands in the wrapper folder, swapped in or not.
    bool hasBundle(const ApplicationInfo& app) const;

    /// Whether a creation or removal was stopped half-way. The next creation or removal of the application
    /// repairs it.
    bool isUnfinished(const std::string& bundleID) const;

    /// Full creation for one application. False after a refusal or when the application has no row in
    /// Launchpad, with nothing changed; false after a failed index or swap, which leave no wrapper, no mapping
    /// and no selected icon.
    [[nodiscard]] bool createWrapper(const ApplicationInfo& app, const QImage& icon);

    /// The first half of a creation, for many applications before one Dock restart: builds and registers,
    /// without restart and waiting.
    [[nodiscard]] bool batchCreateWrapper(const ApplicationInfo& app, const QImage& icon);
    /// The second half: waits for the index, swaps, and repoints the Dock. Every failure cleans up.
    [[nodiscard]] bool completeCreation(const ApplicationInfo& app);

    /// Replaces the icon of an existing wrapper; without one it is created. False when the icon could not be
    /// set.
    [[nodiscard]] bool updateWrapperIcon(const ApplicationInfo& app, const QImage& icon);

    /// Only the writing: shapes the icon by the user's settings and sets it on the wrapper, in up to three
    /// attempts. Nothing is registered or restarted.
    [[nodiscard]] bool setWrapperIcon(const ApplicationInfo& app, const QImage& icon);

    /// Re-registers a mapped application's wrapper. When the wrapper is gone the rows are put back, as far as
    /// they are still there, and the mapping is dropped.
    void refreshWrapper(const ApplicationInfo& app);

    /// Swaps back and deletes. Never stops half-way: each step logs and the next runs. True when everything
    /// went well. Only what is there is undone, so that it may be called for an application without a wrapper.
    bool removeWrapper(const ApplicationInfo& app, RestartDock restartDock);

    void registerWrapper(const MacPath& path);

    /// Polls the database once a second until the wrapper's row is there.
    std::optional<RowID> waitUntilIndexed(const std::string& bundleID, int maxAttempts);

private:
    using Row = WrapperRows::Row;

    /// The lines of a clean-up, whole. A null one is not logged.
    struct CleanUpLines {
        const char* start;
        const char* removed;
        const char* reset;
    };

    std::optional<MacPath> refuseLinks(const ApplicationInfo& app) const;
    std::optional<MacPath> mayCreate(const ApplicationInfo& app);

    bool createAnew(const ApplicationInfo& app, const QImage& icon, const MacPath& wrapper);
    void removeExisting(const MacPath& wrapper);
    bool setIcon(const ApplicationInfo& app, const MacPath& wrapper, const QImage& icon);
    void recordHiddenApp(const ApplicationInfo& app, const Row& original);
    enum class Then { moreToDo, finished };
    bool saveMapping(const ApplicationInfo& app, const Row& original, RowID wrapper, Then then);
    void cleanUp(const ApplicationInfo& app, const MacPath& wrapper, const CleanUpLines& lines);

    bool dropMapping(const std::string& bundleID);
    void forget(const std::string& bundleID, bool areRowsBack);

    const Row* rowToSwapBack(const WrapperRows& rows, const TavrikMapping& mapping,
                             const std::optional<HiddenFlagApp>& hidden) const;
    bool swapBack(const ApplicationInfo& app, const TavrikMapping& mapping);
    bool restoreDock(const ApplicationInfo& app, bool isSwapped);
    bool dockNeedsRestoring(const std::string& bundleID, bool isSwapped) const;

    Mac& m_mac;
    SettingsManager& m_settings;
    DatabaseManager& m_database;
    DockManager& m_dock;
    IconManager& m_icons;
    LaunchpadManager& m_launchpad;
    IconSettingsManager& m_iconSettings;
    WrapperFolder m_folder;
    WrapperIndex m_index;
    PlacementExchange m_exchange;
};

} // namespace tavrik
