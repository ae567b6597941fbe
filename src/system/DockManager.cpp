#include "system/DockManager.h"

#include "model/SettingsManager.h"
#include "platform/AtomicFile.h"
#include "platform/Bookmarks.h"
#include "platform/Clock.h"
#include "platform/DistributedNotifications.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/PathRules.h"
#include "platform/Threads.h"
#include "platform/Tools.h"
#include "platform/Volume.h"
#include "system/DockTiles.h"

#include <chrono>

using namespace std::chrono_literals;

namespace tavrik {

namespace {

constexpr auto kSettle = 100ms; ///< the Dock's time to take a notification or a write in

Error noDictionary() {
    return Error{"the file holds no dictionary"};
}

} // namespace

DockManager::DockManager(Mac& mac, SettingsManager& settings)
    : m_mac(mac),
      m_settings(settings),
      m_plistPath(dockPreferencesPath(mac.volume.home())),
      m_backupPath(dockPreferencesBackupPath(mac.volume.home())) {}

bool DockManager::updateDockEntry(const std::string& bundleID, const MacPath& wrapperPath) {
    if (!m_mac.files.exists(wrapperPath)) {
        log("ERROR: Tavrik app doesn't exist at " + wrapperPath.string());
        return false;
    }
    backupDockPlist();

    std::optional<plist::Value> dock = readDockPlist();
    dock::Tile tile = findTile(dock, bundleID);
    if (!tile)
        return false;

    // The first bookmark must be safe on disk before the tile loses it.
    if (!keepFirstBookmark(bundleID, tile))
        return false;

    const Result<Bytes> bookmark = m_mac.bookmarks.make(wrapperPath);
    if (!bookmark) {
        log("ERROR: Failed to create bookmark for tavrik app");
        return false;
    }
    pointTile(tile, *bookmark, wrapperPath);
    log("Updated Dock entry for " + bundleID + " to use tavrik app");

    dock::raiseModCount(*dock);
    if (!writeDockPlist(*dock))
        return false;
    log("Successfully wrote updated Dock plist");
    notifyDock();
    return true;
}

bool DockManager::restoreDockEntry(const std::string& bundleID) {
    const std::optional<DockBookmark> saved = m_settings.getDockBookmark(bundleID);
    if (!saved) {
        log("No original bookmark found for " + bundleID);
        return false;
    }
    std::optional<plist::Value> dock = readDockPlist();
    dock::Tile tile = findTile(dock, bundleID);
    if (!tile)
        return false;

    tile.setBookmark(saved->bookmark);
    const Result<MacPath> target = m_mac.bookmarks.resolve(saved->bookmark);
    if (target)
        tile.setURL(m_mac.bookmarks.fileURL(*target));
    else
        log("Failed to resolve bookmark: " + target.error().description);
    // The wrapper's date would say that the application had changed.
    if (saved->fileModDate)
        tile.setModified(&*saved->fileModDate);
    log("Restored original Dock entry for " + bundleID);

    dock::raiseModCount(*dock);
    if (!writeDockPlist(*dock))
        return false;
    m_settings.removeDockBookmark(bundleID);
    return true;
}

bool DockManager::forceRestoreDockEntry(const std::string& bundleID, const MacPath& originalPath) {
    if (!m_mac.files.exists(originalPath)) {
        log("ERROR: Original app doesn't exist at " + originalPath.string());
        return false;
    }
    std::optional<plist::Value> dock = readDockPlist();
    dock::Tile tile = findTile(dock, bundleID);
    if (!tile)
        return false;

    const Result<Bytes> bookmark = m_mac.bookmarks.make(originalPath);
    if (!bookmark) {
        log("ERROR: Failed to create bookmark for original app");
        return false;
    }
    pointTile(tile, *bookmark, originalPath);
    log("Force updated Dock entry for " + bundleID + " to original app");

    dock::raiseModCount(*dock);
    if (!writeDockPlist(*dock))
        return false;
    log("Successfully wrote updated Dock plist");
    m_settings.removeDockBookmark(bundleID);
    notifyDock();
    return true;
}

bool DockManager::isAppInDock(const std::string& bundleID) const {
    std::optional<plist::Value> dock = readDockPlist();
    return dock && dock::findTile(*dock, bundleID);
}

std::vector<DockApp> DockManager::dockApps() const {
    std::vector<DockApp> apps;
    std::optional<plist::Value> dock = readDockPlist();
    if (!dock)
        return apps;
    for (const dock::Tile& tile : dock::appTiles(*dock)) {
        DockApp app{.bundleID = *tile.bundleID(), .path = {}};
        if (const Bytes* bookmark = tile.bookmark()) {
            if (const Result<MacPath> path = m_mac.bookmarks.resolve(*bookmark))
                app.path = *path;
        }
        apps.push_back(std::move(app));
    }
    return apps;
}

void DockManager::backupDockPlist() {
    if (!m_mac.files.exists(m_plistPath))
        return;
    const Result<Bytes> content = m_mac.files.read(m_plistPath);
    if (!content) {
        log("Failed to backup Dock plist: " + content.error().description);
        return;
    }
    // A damaged file must not take the place of the last good copy.
    if (const auto parsed = plist::parse(*content); !parsed) {
        log("Failed to backup Dock plist: " + parsed.error().description);
        return;
    }
    if (const Status written = writeAtomically(m_mac.files, m_backupPath, *content); !written) {
        log("Failed to backup Dock plist: " + written.error().description);
        return;
    }
    log("Backed up Dock plist to " + m_backupPath.string());
}

std::optional<plist::Value> DockManager::readDockPlist() const {
    const Result<Bytes> content = m_mac.files.read(m_plistPath);
    Result<plist::Value> dock = content ? plist::parse(*content) : Result<plist::Value>(content.error());
    if (dock && !dock->as<plist::Dictionary>())
        dock = noDictionary();
    if (!dock) {
        log("Failed to read Dock plist: " + dock.error().description);
        return std::nullopt;
    }
    return std::move(*dock);
}

bool DockManager::writeDockPlist(const plist::Value& dock) {
    const Result<Bytes> content = plist::serialize(dock, plist::Format::binary);
    const Status written = content ? m_mac.files.write(m_plistPath, *content) : Status(content.error());
    if (!written)
        log("Failed to write Dock plist: " + written.error().description);
    return bool(written);
}

void DockManager::notifyDock() {
    m_mac.notifications.post("com.apple.dock.prefchanged");
    m_mac.notifications.post("com.apple.dock.refreshItems");
}

void DockManager::forceDockSync() {
    assertOffMainThread("The forced sync of the Dock's preferences");
    ignoreFailure(m_mac.tools.run(MacPath("/usr/bin/touch"), {m_plistPath.string()}));
    notifyDock();
    m_mac.clock.sleep(kSettle);
    // A deliberate change of the Dock's domain, so that the preferences service hands the file out anew.
    ignoreFailure(m_mac.tools.run(MacPath("/usr/bin/defaults"),
                                  {"write", "com.apple.dock", "RecentlyUsedApps", "-bool", "true"}));
    m_mac.clock.sleep(kSettle);
    notifyDock();
}

dock::Tile DockManager::findTile(std::optional<plist::Value>& dock, const std::string& bundleID) const {
    if (!dock) {
        log("Failed to read Dock plist");
        return {};
    }
    if (!dock->find<plist::Array>("persistent-apps")) {
        log("No persistent-apps found in Dock plist");
        return {};
    }
    const dock::Tile tile = dock::findTile(*dock, bundleID);
    if (!tile)
        log("App " + bundleID + " not found in Dock");
    return tile;
}

bool DockManager::keepFirstBookmark(const std::string& bundleID, const dock::Tile& tile) {
    const Bytes* first = tile.bookmark();
    if (!first || m_settings.getDockBookmark(bundleID))
        return true;
    // A tile that already opens a wrapper has no first bookmark to offer.
    if (const Result<MacPath> target = m_mac.bookmarks.resolve(*first); target && isWrapperPath(*target))
        return true;
    const plist::Value* date = tile.modified();
    m_settings.saveDockBookmark({.bundleID = bundleID,
                                 .bookmark = *first,
                                 .isOriginal = true,
                                 .fileModDate = date ? std::optional(*date) : std::nullopt});
    if (!m_settings.getDockBookmark(bundleID)) {
        log("ERROR: Failed to save original Dock bookmark for " + bundleID);
        return false;
    }
    log("Saved original Dock bookmark for " + bundleID);
    return true;
}

void DockManager::pointTile(dock::Tile& tile, const Bytes& bookmark, const MacPath& app) const {
    tile.setBookmark(bookmark);
    tile.setURL(m_mac.bookmarks.fileURL(app));
    if (const Result<FileAttributes> attributes = m_mac.files.attributes(app))
        tile.setModified(attributes->modified);
    else
        log("Failed to get modification date: " + attributes.error().description);
}

} // namespace tavrik
