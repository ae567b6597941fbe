#pragma once

#include "model/ApplicationInfo.h"
#include "model/DatabaseAppEntry.h"

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
class TavrikAppManager {
public:
    TavrikAppManager(Mac& mac, SettingsManager& settings, DatabaseManager& database, DockManager& dock,
                     IconManager& icons, LaunchpadManager& launchpad, IconSettingsManager& iconSettings);

    const MacPath& tavrikAppsURL() const { return m_tavrikAppsURL; }

    /// Where an application's wrapper stands, existing or not. Nothing when the application's name cannot be a
    /// file name.
    std::optional<MacPath> wrapperPath(const ApplicationInfo& app) const;

    /// Full creation for one application. False leaves no wrapper, no mapping and no selected icon.
    [[nodiscard]] bool createWrapper(const ApplicationInfo& app, const QImage& icon);

    /// The first half of a creation, for many applications before one Dock restart: builds and registers,
    /// without restart and waiting.
    [[nodiscard]] bool batchCreateWrapper(const ApplicationInfo& app, const QImage& icon);
    /// The second half: waits for the index, swaps, and repoints the Dock. False cleans up as `createWrapper`
    /// does.
    [[nodiscard]] bool completeCreation(const ApplicationInfo& app);

    /// Replaces the icon of an existing wrapper; without one it is created.
    [[nodiscard]] bool updateWrapperIcon(const ApplicationInfo& app, const QImage& icon);

    /// Re-registers a mapped application's wrapper, or drops the mapping when the wrapper is gone.
    void refreshWrapper(const ApplicationInfo& app);

    /// Swaps back and deletes. Never stops half-way: each step logs and the next runs. True when everything
    /// went well.
    bool removeWrapper(const ApplicationInfo& app, RestartDock restartDock);

    void registerWrapper(const MacPath& path);

    /// Polls the database once a second until the wrapper's row is there.
    std::optional<RowID> waitUntilIndexed(const std::string& bundleID, int maxAttempts);

private:
    Mac& m_mac;
    SettingsManager& m_settings;
    DatabaseManager& m_database;
    DockManager& m_dock;
    IconManager& m_icons;
    LaunchpadManager& m_launchpad;
    IconSettingsManager& m_iconSettings;
    MacPath m_tavrikAppsURL;
};

} // namespace tavrik
