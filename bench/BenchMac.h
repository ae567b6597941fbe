#pragma once

#include "icons/IconCache.h"
#include "icons/IconStore.h"
#include "model/SettingsManager.h"
#include "model/UnsupportedAppsManager.h"
#include "model/catalogue/AppManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/PathRules.h"
#include "platform/Volume.h"
#include "platform/practice/PracticeMac.h"
#include "practice/furnish/Furnish.h"
#include "practice/furnish/LargeDatabase.h"
#include "system/DatabaseManager.h"
#include "system/DockManager.h"
#include "system/IconManager.h"
#include "system/LaunchpadManager.h"
#include "wrappers/IconSettingsManager.h"
#include "wrappers/TavrikAppManager.h"

#include <cstdlib>
#include <filesystem>

namespace tavrik::bench {

/// The managers of the catalogue on a practice Mac, silent.
struct Catalogue {
    explicit Catalogue(const HostPath& root) : practice(root) { setLogStream(nullptr); }

    practice::PracticeMac practice;
    SettingsManager settings{practice.mac()};
    UnsupportedAppsManager unsupported;
    IconManager icons{practice.mac()};
    DatabaseManager database{practice.mac(), settings, icons, unsupported};
    DockManager dock{practice.mac(), settings};
    LaunchpadManager launchpad{practice.mac(), dock};
    IconSettingsManager iconSettings{practice.mac()};
    TavrikAppManager wrappers{practice.mac(), settings, database, dock, icons, launchpad, iconSettings};
    IconCache cache{practice.mac().files};
    IconStore store{practice.mac().files, settings, cache};
    AppManager apps{database, settings, wrappers, store, cache};
};

/// Furnishes a practice Mac with so many rows in its Launchpad database. Ends the process when it cannot.
inline void furnishWithRows(const HostPath& root, int rows,
                            practice::TitleStyle style = practice::TitleStyle::plain) {
    const auto furnished = practice::furnish(root, {});
    practice::PracticeMac mac(root);
    const HostPath file = mac.mac().volume.hostPath(launchpadDatabasePath(mac.mac().volume.temporaryFolder()));
    if (!furnished || !practice::writeLargeDatabase(root, file, rows, style))
        std::abort();
}

/// A folder of the host for one benchmark, gone at its end.
class Folder {
public:
    Folder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "tavrik-bench-XXXXXX").string();
        if (!mkdtemp(pattern.data()))
            std::abort();
        m_path = HostPath(pattern);
    }

    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path.string(), ignored);
    }

    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    const HostPath& path() const { return m_path; }

private:
    HostPath m_path;
};

} // namespace tavrik::bench
