#include "icons/list/CatalogueReader.h"

#include "model/catalogue/AppManager.h"
#include "platform/MainQueue.h"
#include "platform/Threads.h"
#include "system/DockManager.h"
#include "themes/ThemeManager.h"

#include <memory>
#include <utility>

namespace tavrik {

CatalogueReader::CatalogueReader(AppManager& apps, const DockManager& dock, const ThemeManager& themes)
    : m_apps(apps),
      m_dock(dock),
      m_themes(themes) {}

void CatalogueReader::read(std::function<void(const CatalogueReading&)> completion) {
    assertOnMainThread("Asking for the catalogue");
    m_waiting.push_back(std::move(completion));
    if (!m_isReading)
        start();
}

void CatalogueReader::start() {
    m_isReading = true;
    // Taken here, since the reading must not wait for the main thread, which waits for it at the end.
    m_queue.async([this, context = QPointer<QObject>(&m_mainThread), offer = m_themes.offer(),
                   served = std::exchange(m_waiting, {})] {
        auto reading = std::make_shared<const CatalogueReading>(readNow(offer));
        MainQueue::async(context, [this, reading, offer, served] { finish(*reading, offer, served); });
    });
}

/// The themes may have changed meanwhile: then those who wait get the next reading.
void CatalogueReader::finish(const CatalogueReading& reading, const ThemeOffer& offer,
                             const std::vector<Completion>& served) {
    m_isReading = false;
    const bool isOutdated = offer != m_themes.offer();
    if (isOutdated)
        m_waiting.insert(m_waiting.begin(), served.begin(), served.end());
    if (!m_waiting.empty())
        start();
    for (const Completion& completion : isOutdated ? std::vector<Completion>() : served)
        completion(reading);
}

CatalogueReading CatalogueReader::readNow() const {
    return readNow(m_themes.offer());
}

CatalogueReading CatalogueReader::readNow(const ThemeOffer& offer) const {
    assertOffMainThread("Reading the catalogue");
    CatalogueReading reading;
    reading.apps = m_apps.loadApplications();
    reading.themeIcons = m_themes.themeIcons(offer);
    for (DockApp& tile : m_dock.dockApps())
        reading.dockApps.insert(std::move(tile.bundleID));
    return reading;
}

} // namespace tavrik
