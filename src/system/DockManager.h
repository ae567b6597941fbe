#pragma once

#include "platform/Path.h"
#include "platform/PropertyList.h"

#include <optional>
#include <string>
#include <vector>

namespace tavrik {

class SettingsManager;
struct Mac;

namespace dock {
class Tile;
}

/// An application tile of the Dock.
struct DockApp {
    std::string bundleID;
    MacPath path; ///< where its bookmark leads; empty when it does not resolve

    bool operator==(const DockApp&) const = default;
};

/// Edits the user's Dock preferences: repoints an application's tile to its wrapper and back. Never adds,
/// removes or reorders tiles, and writes every key that it does not change back as it was. Each operation reads
/// and writes the whole file, with a log line for every failure. Background thread only.
class DockManager {
public:
    DockManager(Mac& mac, SettingsManager& settings);

    const MacPath& dockPlistPath() const { return m_plistPath; }

    /// Points the tile at the wrapper and notifies the Dock. The tile's first bookmark is saved in the settings
    /// and never replaced; it is kept on failure. False when the wrapper is missing, no tile matches, or the
    /// file cannot be read or written.
    [[nodiscard]] bool updateDockEntry(const std::string& bundleID, const MacPath& wrapperPath);

    /// Puts the saved bookmark back and forgets it. Posts nothing: the caller restarts the Dock. On failure the
    /// saved bookmark is kept.
    [[nodiscard]] bool restoreDockEntry(const std::string& bundleID);

    /// Points the tile at the original application by a fresh bookmark, for when no saved one is usable, and
    /// notifies the Dock.
    [[nodiscard]] bool forceRestoreDockEntry(const std::string& bundleID, const MacPath& originalPath);

    bool isAppInDock(const std::string& bundleID) const;

    /// The tiles that carry a bundle identifier, in Dock order.
    std::vector<DockApp> dockApps() const;

    /// Renews the one-file backup beside the preferences. Preferences that cannot be parsed are not backed up,
    /// so that a file cut by a failed write never replaces the last good copy; a kill leaves the old backup or
    /// the new one.
    void backupDockPlist();
    std::optional<plist::Value> readDockPlist() const;
    /// In binary, over the file in one write: a failure in the middle may leave it cut, and the one-file backup
    /// stands.
    [[nodiscard]] bool writeDockPlist(const plist::Value& dock);

    /// Posts "com.apple.dock.prefchanged" and "com.apple.dock.refreshItems".
    void notifyDock();

    /// Makes the Dock's preferences domain change so that the Dock reloads it: touch, notify, a deliberate
    /// write, notify, with two waits of 0.1 s.
    void forceDockSync();

private:
    dock::Tile findTile(std::optional<plist::Value>& dock, const std::string& bundleID) const;
    bool keepFirstBookmark(const std::string& bundleID, const dock::Tile& tile);
    void pointTile(dock::Tile& tile, const Bytes& bookmark, const MacPath& app) const;

    Mac& m_mac;
    SettingsManager& m_settings;
    MacPath m_plistPath;
    MacPath m_backupPath;
};

} // namespace tavrik
