#include "ui/models/ThemeShelf.h"

#include "app/AppDelegate.h"
#include "app/Managers.h"
#include "model/catalogue/Refusal.h"
#include "platform/MainQueue.h"
#include "ui/models/Background.h"

#include <utility>

namespace tavrik {

ThemeShelf::ThemeShelf(const UiServices& with) : m_with(with) {}

void ThemeShelf::open() {
    if (std::exchange(m_isOpen, true))
        return;
    NotificationCenter& notifications = m_with.managers.notificationCenter;
    // Whatever is posted on another thread is heard on the main one.
    const auto observe = [&](std::string_view name, void (ThemeShelf::*heard)()) {
        m_observations.push_back(notifications.observe(
            std::string(name), [this, heard] { MainQueue::async(this, [this, heard] { (this->*heard)(); }); }));
    };
    observe(kThemesUpdated, &ThemeShelf::reload);
    observe(kReloadApplicationsAfterApply, &ThemeShelf::reload);
    observe(kReloadApplicationsAfterBackupRestore, &ThemeShelf::reload);
    m_observations.push_back(
        notifications.observe(std::string(kPendingChangesUpdated), [this] { Q_EMIT changed(); }));
    reload();
}

void ThemeShelf::reload() {
    if (!m_isOpen)
        return;
    if (std::exchange(m_isReading, true)) {
        m_isOutdated = true;
        return;
    }
    m_with.background.run(
        this,
        [&managers = m_with.managers, themes = m_with.managers.themes.installedThemes()] {
            return readThemes(managers, themes);
        },
        [this](ThemeReading reading) {
            m_isReading = false;
            if (std::exchange(m_isOutdated, false)) {
                reload();
                return;
            }
            m_reading = std::move(reading);
            m_isLoaded = true;
            Q_EMIT changed();
        });
}

std::vector<ThemeIconRow> ThemeShelf::rowsOf(const ThemeFacts& theme) const {
    return iconRows(theme, m_reading.apps, m_with.managers.pendingChanges.staged(),
                    [this](const ApplicationInfo& app) {
                        return refusalOf(app, m_with.managers.unsupported.contains(app.bundleID));
                    });
}

} // namespace tavrik
