#include "maintenance/WrapperRemovals.h"

#include "backups/BackupManager.h"
#include "changes/apply/ApplyServices.h"
#include "fonts/PlainNames.h"
#include "maintenance/HealthLook.h"
#include "maintenance/LostExchange.h"
#include "maintenance/Traces.h"
#include "maintenance/WrapperFolderContents.h"
#include "model/SettingsManager.h"
#include "model/catalogue/AppManager.h"
#include "platform/Clock.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "system/DatabaseManager.h"
#include "system/DockManager.h"
#include "system/DockTiles.h"
#include "wrappers/PlacementExchange.h"
#include "wrappers/TavrikAppManager.h"
#include "wrappers/WrapperFolder.h"

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

namespace tavrik {

namespace {

constexpr int kMostTries = 8;
constexpr auto kBetweenTries = 500ms;

std::string listed(const std::vector<std::string>& names) {
    std::string list;
    for (std::size_t i = 0; i < names.size(); ++i)
        list += (i == 0 ? "" : i + 1 == names.size() ? " and " : ", ") + names[i];
    return list;
}

} // namespace

void WrapperRemovals::run() {
    // While the wrappers are there, whose links tell their originals.
    pointTilesBack();
    for (const ApplicationInfo& app : m_with.apps.loadApplications()) {
        if (m_with.settings.getMapping(app.bundleID) || m_with.wrappers.hasBundle(app) ||
            m_with.wrappers.isUnfinished(app.bundleID))
            remove(app);
    }
    removeUnlisted();
    removeStrayBundles();
    if (!m_names.empty())
        m_done.push_back((m_names.size() == 1 ? "This application has its own look back: "
                                              : "These applications have their own look back: ") +
                         listed(m_names) + ".");
}

/// As a backup has them: by the first bookmark that was saved, else by the wrapper, also where one application
/// has several tiles.
void WrapperRemovals::pointTilesBack() {
    const auto before = readTraces(m_with);
    if (!before || before->wrapperTiles.empty())
        return;
    const Result<Bytes> content = m_with.mac.files.read(m_with.dock.dockPlistPath());
    if (!content)
        return;
    auto dock = plist::parse(m_with.backups.cleanDockPlist(*content));
    if (!dock || !dock->as<plist::Dictionary>())
        return;
    m_with.dock.backupDockPlist();
    dock::raiseModCount(*dock);
    if (m_with.dock.writeDockPlist(*dock))
        m_done.push_back(
            "The tiles in the Dock lead to the applications themselves: " + listed(before->wrapperTiles) + ".");
}

void WrapperRemovals::remove(const ApplicationInfo& app) {
    // In a locked database no row would be found, and the removal would go on without putting it back.
    if (!isDatabaseFree()) {
        log("⚠️ The places of " + app.bundleID + " could not be put back, so its wrapper stays");
        return;
    }
    if (!m_with.settings.getMapping(app.bundleID) && !m_with.wrappers.isUnfinished(app.bundleID))
        noteLostExchange(HealthLook(m_with), app.bundleID);
    bool isRemoved = m_with.wrappers.removeWrapper(app, RestartDock::no);
    for (int tries = 1; !isRemoved && tries < kMostTries && m_with.wrappers.isUnfinished(app.bundleID);
         ++tries) {
        m_with.mac.clock.sleep(kBetweenTries);
        isRemoved = m_with.wrappers.removeWrapper(app, RestartDock::no);
    }
    if (isRemoved)
        m_names.push_back(bundleName(app.path));
}

/// Of applications that Launchpad does not list: they are gone, or on a disk that is not there.
void WrapperRemovals::removeUnlisted() {
    PlacementExchange exchange(m_with.settings, m_with.database);
    for (const std::string& bundleID : swappedApps()) {
        const auto mapping = m_with.settings.getMapping(bundleID);
        const bool isBack =
            exchange.isUnfinished(bundleID) || !mapping
                ? exchange.undoUnfinished(bundleID)
                : exchange.swapBackIfThere(bundleID, mapping->originalRowID, mapping->tavrikRowID);
        if (!isBack)
            continue;
        m_with.settings.removeMapping(bundleID);
        exchange.finish(bundleID);
    }
}

void WrapperRemovals::removeStrayBundles() {
    const MacPath& folder = m_with.wrappers.tavrikAppsURL();
    const auto contents = readWrapperFolder(m_with.mac.files, folder);
    if (!contents)
        return;
    const auto kept = swappedApps();
    WrapperFolder wrappers(m_with.mac);
    for (const std::string& name : contents->wrappers) {
        // The one of an application whose rows could not be put back stays in their place.
        if (std::ranges::any_of(kept, [&](const std::string& bundleID) {
                return !wrappers.belongsToAnother(folder / name, bundleID);
            }))
            continue;
        if (const Status removed = wrappers.remove(folder / name); removed)
            m_done.push_back("The wrapper " + name + ", which stood for no application, is gone.");
        else
            log("⚠️ Could not remove the wrapper " + name + ": " + removed.error().description);
    }
}

/// By the settings, also half-way.
std::set<std::string> WrapperRemovals::swappedApps() const {
    std::set<std::string> apps;
    for (const auto& [bundleID, mapping] : m_with.settings.getAllMappings())
        apps.insert(bundleID);
    for (const auto& [bundleID, record] : m_with.settings.getAllSwapRecords())
        apps.insert(bundleID);
    return apps;
}

bool WrapperRemovals::isDatabaseFree() {
    bool isFree = m_with.database.isWritable();
    for (int tries = 1; !isFree && tries < kMostTries; ++tries) {
        m_with.mac.clock.sleep(kBetweenTries);
        isFree = m_with.database.isWritable();
    }
    return isFree;
}

} // namespace tavrik
