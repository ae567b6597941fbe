#include "fonts/FontManager.h"

#include "fonts/DockTitles.h"
#include "fonts/LaunchpadTitles.h"
#include "fonts/ShownStyles.h"
#include "model/SettingsManager.h"
#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/Sqlite.h"
#include "platform/Threads.h"
#include "platform/Volume.h"
#include "system/DatabaseManager.h"
#include "system/DockManager.h"

#include <chrono>

using namespace std::chrono_literals;

namespace tavrik {

namespace {

constexpr auto kBeforeLastSync = 500ms;

} // namespace

FontManager::FontManager(Mac& mac, SettingsManager& settings, DatabaseManager& database, DockManager& dock)
    : m_mac(mac),
      m_settings(settings),
      m_database(database),
      m_dock(dock) {}

void FontManager::applyFont(const std::string& fontName) {
    assertOffMainThread("The application of a styled font");
    if (!m_fontReplacer.hasFont(fontName)) {
        log("ERROR: Unknown font style: " + fontName);
        return;
    }
    log("\n=== APPLYING FONT: " + fontName + " ===");
    const FontState style{fontName, m_fontReplacer.isMultiCaseFont(fontName), {}};
    const auto shown = shownStyles(m_settings, m_fontReplacer);
    if (!begin(style))
        return;

    DockTitles dockTitles(m_mac, m_dock, m_fontReplacer);
    dockTitles.style(fontName);
    changeLaunchpad([&](LaunchpadTitles& titles) {
        titles.styleApps(fontName);
        if (titles.styleFolders(style, shown))
            m_settings.endFontChange();
        titles.removeOrphanedBackups();
    });
    m_mac.clock.sleep(kBeforeLastSync);
    dockTitles.sync();
    log("=== FONT APPLICATION COMPLETE ===\n");
}

void FontManager::resetAllFonts() {
    assertOffMainThread("The reset of styled fonts");
    log("\n=== RESETTING ALL FONTS ===");
    const auto shown = shownStyles(m_settings, m_fontReplacer);
    if (!begin(std::nullopt))
        return;

    DockTitles dockTitles(m_mac, m_dock, m_fontReplacer);
    dockTitles.reset();
    changeLaunchpad([&](LaunchpadTitles& titles) {
        titles.resetApps();
        if (titles.resetFolders(shown))
            m_settings.endFontChange();
    });
    m_mac.clock.sleep(kBeforeLastSync);
    dockTitles.sync();
    log("=== FONT RESET COMPLETE ===\n");
}

bool FontManager::begin(const TitleStyle& style) {
    if (m_settings.beginFontChange(style))
        return true;
    // A later change would take the titles for what they are not, and with that lose the capitals of folders.
    log("ERROR: The style cannot be recorded, so the titles stay as they are");
    return false;
}

void FontManager::changeLaunchpad(const std::function<void(LaunchpadTitles&)>& change) {
    const HostPath file = m_mac.volume.hostPath(m_database.launchpadDatabasePath());
    // A missing database is not created.
    auto database = file.empty() ? std::nullopt : sqlite::Connection::open(file, sqlite::OpenMode::readWrite);
    if (!database)
        return;
    LaunchpadTitles titles(*database, m_mac.bookmarks, m_settings, m_fontReplacer);
    change(titles);
}

} // namespace tavrik
