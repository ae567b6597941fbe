#include "ui/models/PrivacyNote.h"

#include "app/MacHost.h"
#include "app/Managers.h"
#include "platform/Mac.h"
#include "platform/Volume.h"
#include "ui/models/Background.h"
#include "ui/models/CoreWords.h"
#include "ui/models/PrivacySettings.h"

#include <vector>

namespace tavrik {

void PrivacyNote::look() {
    ++m_looks;
    Q_EMIT changed();
    m_with.background.run(
        this,
        [&mac = m_with.host.mac(), support = m_with.managers.settings.appSupportURL()] {
            return refusedPlaces(mac, support);
        },
        [this](const std::vector<RefusedPlace>& refused) {
            const SystemVersion version = m_with.host.mac().machine.systemVersion();
            --m_looks;
            m_text = inTheirLanguage(inWords(refused, version, m_with.host.mac().volume.home()));
            m_pane = refused.empty() ? std::nullopt : std::optional(paneFor(refused, version));
            Q_EMIT changed();
        });
}

void PrivacyNote::openSettings() const {
    if (m_pane)
        openPrivacySettings(*m_pane, m_with.notices);
}

} // namespace tavrik
