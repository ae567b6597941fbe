#include "model/catalogue/AppManager.h"

#include "icons/IconCache.h"
#include "icons/IconStore.h"
#include "model/SettingsManager.h"
#include "platform/Log.h"
#include "system/DatabaseManager.h"
#include "system/IconManager.h"

namespace tavrik {

namespace {

constexpr int kSquareSide = 1024; // pixels

} // namespace

AppManager::AppManager(DatabaseManager& database, SettingsManager& settings, TavrikAppManager& wrappers,
                       IconStore& store, IconCache& cache)
    : m_database(database),
      m_settings(settings),
      m_wrappers(wrappers),
      m_store(store),
      m_cache(cache) {}

std::vector<ApplicationInfo> AppManager::loadApplications() {
    m_settings.preloadSettings();
    std::vector<ApplicationInfo> applications;
    auto rows = m_database.loadLaunchpadApps();
    applications.reserve(rows.size());
    for (auto& [application, entry] : rows)
        applications.push_back(std::move(application));
    m_settings.dropCache();
    return applications;
}

bool AppManager::updateWrapperIcon(const ApplicationInfo& forApp, const QImage& image) {
    if (forApp.isIOSApp) {
        log("Cannot update tavrik app icon for iOS app: " + forApp.name);
        return false;
    }
    if (image.size() == QSize(kSquareSide, kSquareSide))
        return m_wrappers.updateWrapperIcon(forApp, image);
    const auto square = image.isNull() ? std::nullopt : IconManager::squareIcon(image);
    if (!square) {
        log("Failed to convert icon to 1024x1024 for tavrik app update");
        return false;
    }
    return m_wrappers.updateWrapperIcon(forApp, *square);
}

bool AppManager::removeWrapper(const ApplicationInfo& forApp, RestartDock restartDock) {
    if (forApp.isIOSApp) {
        log("Cannot remove tavrik app for iOS app: " + forApp.name);
        return false;
    }
    return m_wrappers.removeWrapper(forApp, restartDock);
}

void AppManager::refreshAllWrapperApps() {
    const auto applications = loadApplications();
    const auto mappings = m_settings.getAllMappings();
    for (const ApplicationInfo& application : applications) {
        if (!application.isIOSApp && mappings.contains(application.bundleID))
            m_wrappers.refreshWrapper(application);
    }
}

std::vector<QImage> AppManager::savedIcons(const std::string& forBundleID) {
    std::vector<QImage> images;
    for (const MacPath& path : m_store.listIcons(forBundleID)) {
        if (const QImage image = m_cache.loadImage(path); !image.isNull())
            images.push_back(image);
    }
    return images;
}

} // namespace tavrik
