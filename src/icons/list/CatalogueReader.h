#pragma once

#include "model/ApplicationInfo.h"
#include "platform/Path.h"
#include "platform/SerialQueue.h"

#include <QObject>

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace tavrik {

class AppManager;
class DockManager;
class ThemeManager;
struct ThemeOffer;

/// What the lists are made of, read at one moment.
struct CatalogueReading {
    std::vector<ApplicationInfo> apps; ///< empty when the Launchpad database cannot be read
    std::set<std::string> dockApps;    ///< bundle identifiers of the Dock's tiles
    std::map<std::string, std::vector<MacPath>> themeIcons; ///< that are offered, by bundle identifier
};

/// Reads the catalogue for all lists at once, off the main thread. Main thread only.
class CatalogueReader {
public:
    CatalogueReader(AppManager& apps, const DockManager& dock, const ThemeManager& themes);

    /// Reads anew and hands the reading over on the main queue. Calls that come while a reading is under way
    /// share the one after it, so that the last call always sees what was on disk when it came.
    using Completion = std::function<void(const CatalogueReading&)>;
    void read(Completion completion);

    /// The same on the calling thread, not the main one.
    CatalogueReading readNow() const;

private:
    void start();
    void finish(const CatalogueReading& reading, const ThemeOffer& offer,
                const std::vector<Completion>& served);
    CatalogueReading readNow(const ThemeOffer& offer) const;

    AppManager& m_apps;
    const DockManager& m_dock;
    const ThemeManager& m_themes;
    bool m_isReading = false;
    std::vector<Completion> m_waiting;
    QObject m_mainThread;
    SerialQueue m_queue{"com.tavrik.catalogue"}; ///< last: runs out before the rest goes
};

} // namespace tavrik
