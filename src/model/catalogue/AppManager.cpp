#include "model/catalogue/AppManager.h"

#include "model/SettingsManager.h"
#include "system/DatabaseManager.h"

namespace tavrik {

AppManager::AppManager(DatabaseManager& database, SettingsManager& settings)
    : m_database(database),
      m_settings(settings) {}

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

} // namespace tavrik
