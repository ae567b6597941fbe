#include "wrappers/TavrikAppManager.h"

#include "model/SettingsManager.h"
#include "model/SquircleOutline.h"
#include "platform/Clock.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/Threads.h"
#include "platform/Tools.h"
#include "system/DatabaseManager.h"
#include "system/IconManager.h"
#include "system/LaunchpadManager.h"
#include "wrappers/IconSettingsManager.h"

#include <chrono>

using namespace std::chrono_literals;

namespace tavrik {

namespace {

constexpr int kIconAttempts = 3;
constexpr auto kBetweenIconAttempts = 200ms;

const MacPath kTouch{"/usr/bin/touch"};
const MacPath kRegister{
    "/System/Library/Frameworks/CoreServices.framework/Frameworks/LaunchServices.framework/Support/lsregister"};

} // namespace

TavrikAppManager::TavrikAppManager(Mac& mac, SettingsManager& settings, DatabaseManager& database,
                                   DockManager& dock, IconManager& icons, LaunchpadManager& launchpad,
                                   IconSettingsManager& iconSettings)
    : m_mac(mac),
      m_settings(settings),
      m_database(database),
      m_dock(dock),
      m_icons(icons),
      m_launchpad(launchpad),
      m_iconSettings(iconSettings),
      m_folder(mac),
      m_index(mac, settings, database),
      m_exchange(settings, database) {}

std::optional<MacPath> TavrikAppManager::wrapperPath(const ApplicationInfo& app) const {
    const MacPath path = m_folder.wrapperOf(app.path);
    return path.empty() ? std::nullopt : std::optional(path);
}

bool TavrikAppManager::isUnfinished(const std::string& bundleID) const {
    return m_exchange.isUnfinished(bundleID);
}

bool TavrikAppManager::hasWrapper(const std::string& bundleID) const {
    return m_settings.getMapping(bundleID) && !m_exchange.isUnfinished(bundleID);
}

bool TavrikAppManager::hasBundle(const ApplicationInfo& app) const {
    const std::optional<MacPath> wrapper = wrapperPath(app);
    return wrapper && m_folder.exists(*wrapper) && !m_folder.belongsToAnother(*wrapper, app.bundleID);
}

bool TavrikAppManager::updateWrapperIcon(const ApplicationInfo& app, const QImage& icon) {
    log("\n=== UPDATING TAVRIK APP ICON ===");
    const std::optional<MacPath> wrapper = refuseLinks(app);
    if (!wrapper)
        return false;

    // A mapping whose wrapper was deleted by hand stands for nothing.
    if (hasWrapper(app.bundleID) && !m_folder.exists(*wrapper)) {
        log("Tavrik app file missing but mapping exists, cleaning up...");
        return dropMapping(app.bundleID) && createWrapper(app, icon);
    }
    if (!hasWrapper(app.bundleID)) {
        log("No tavrik app exists, creating new one");
        return createWrapper(app, icon);
    }

    const bool isSet = setIcon(app, *wrapper, icon);
    if (!isSet)
        log("ERROR: Failed to set custom icon after 3 attempts");
    registerWrapper(*wrapper);
    if (isSet)
        log("Icon updated for tavrik app");
    log("Restarting Dock/Launchpad to ensure icon sync...");
    m_launchpad.restartDock();
    log("=== END UPDATING TAVRIK APP ICON ===\n");
    return isSet;
}

bool TavrikAppManager::setWrapperIcon(const ApplicationInfo& app, const QImage& icon) {
    const std::optional<MacPath> wrapper = refuseLinks(app);
    if (!wrapper || !m_folder.exists(*wrapper))
        return false;
    const bool isSet = setIcon(app, *wrapper, icon);
    if (!isSet)
        log("ERROR: Failed to set custom icon after 3 attempts");
    return isSet;
}

void TavrikAppManager::refreshWrapper(const ApplicationInfo& app) {
    const std::optional<MacPath> wrapper = refuseLinks(app);
    if (!wrapper || !hasWrapper(app.bundleID))
        return;
    if (!m_folder.exists(*wrapper)) {
        log("WARNING: Tavrik app missing for " + app.bundleID + ", cleaning up mapping");
        ignoreFailure(restoreDock(app, false));
        ignoreFailure(dropMapping(app.bundleID));
        return;
    }
    log("Ensuring icon sync for " + app.bundleID);
    registerWrapper(*wrapper);
}

void TavrikAppManager::registerWrapper(const MacPath& path) {
    assertOffMainThread("The registration of a wrapper");
    ignoreFailure(m_mac.tools.run(kTouch, {path.string()}));
    if (const MacPath iconFile = path / "Contents/Resources/Icon.icns"; m_mac.files.exists(iconFile))
        ignoreFailure(m_mac.tools.run(kTouch, {iconFile.string()}));
    ignoreFailure(m_mac.tools.run(kRegister, {"-f", path.string()}));
}

std::optional<RowID> TavrikAppManager::waitUntilIndexed(const std::string& bundleID, int maxAttempts) {
    return m_index.waitUntilIndexed(bundleID, maxAttempts);
}

std::optional<MacPath> TavrikAppManager::refuseLinks(const ApplicationInfo& app) const {
    std::optional<MacPath> wrapper = wrapperPath(app);
    if (!wrapper) {
        log("ERROR: Refusing " + app.bundleID + ": no safe file name for its tavrik app");
        return std::nullopt;
    }
    if (m_folder.isLink(*wrapper)) {
        log("ERROR: Refusing " + app.bundleID +
            ": the Tavrik folder or the tavrik app is a symbolic link: " + wrapper->string());
        return std::nullopt;
    }
    return wrapper;
}

/// Up to three attempts, 0.2 s apart.
bool TavrikAppManager::setIcon(const ApplicationInfo& app, const MacPath& wrapper, const QImage& icon) {
    const std::optional<std::int64_t> index = m_settings.getSelectedIcon(app.bundleID);
    const bool isSquircle = index && m_iconSettings.squircleSetting(app.bundleID, static_cast<int>(*index));
    const QImage shaped = isSquircle ? maskedToSquircle(icon) : icon;

    for (int attempt = 1; attempt <= kIconAttempts; ++attempt) {
        if (attempt > 1)
            m_mac.clock.sleep(kBetweenIconAttempts);
        log("Icon set attempt " + std::to_string(attempt));
        if (m_icons.setCustomIcon(shaped, wrapper))
            return true;
    }
    return false;
}

/// Puts the rows of a mapped application back, if they are still there, and forgets the mapping. False, with
/// everything kept, when the database does not allow it.
bool TavrikAppManager::dropMapping(const std::string& bundleID) {
    const std::optional<TavrikMapping> mapping = m_settings.getMapping(bundleID);
    if (mapping && !m_exchange.swapBackIfThere(bundleID, mapping->originalRowID, mapping->tavrikRowID))
        return false;
    forget(bundleID, true);
    return true;
}

/// The mapping goes before the record of the exchange: a mapping without a record stands for swapped rows. The
/// record is kept for as long as the rows are not back.
void TavrikAppManager::forget(const std::string& bundleID, bool areRowsBack) {
    if (m_settings.getMapping(bundleID))
        m_settings.removeMapping(bundleID);
    // The system may give a row's number out again once its item is gone.
    if (const auto hidden = m_settings.getHiddenFlagApp(bundleID); hidden && hidden->tavrikRowID)
        m_settings.saveHiddenFlagApp(bundleID, hidden->originalFlags, hidden->originalRowID, std::nullopt,
                                     hidden->wasHiddenFlag);
    if (areRowsBack)
        m_exchange.finish(bundleID);
}

} // namespace tavrik
