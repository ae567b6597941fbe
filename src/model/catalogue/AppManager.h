#pragma once

#include "model/ApplicationInfo.h"

#include <vector>

namespace tavrik {

class DatabaseManager;
class SettingsManager;

/// The catalogue of the applications that Launchpad shows, read from its database on demand.
class AppManager {
public:
    AppManager(DatabaseManager& database, SettingsManager& settings);

    /// One record per bundle identifier, by name. Empty when the database cannot be read. Background thread;
    /// blocks on the disk.
    std::vector<ApplicationInfo> loadApplications();

private:
    DatabaseManager& m_database;
    SettingsManager& m_settings;
};

} // namespace tavrik
