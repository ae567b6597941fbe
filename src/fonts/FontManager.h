#pragma once

#include "fonts/FolderNames.h"
#include "fonts/FontReplacer.h"

#include <functional>
#include <string>
#include <vector>

namespace tavrik {

class DatabaseManager;
class DockManager;
class LaunchpadTitles;
class SettingsManager;
struct Mac;

/// Writes one style into every visible name at once, or plain text back: the labels of the Dock's tiles, the
/// titles of Launchpad's applications and of its folders. Keeps a backup of each folder's last good plain name,
/// since a style without small letters destroys the capitals of a name.
///
/// Synchronous, with deliberate waits; background thread only. No error reaches the caller: each is logged and
/// the next target goes on. The style is recorded in the settings before any title is touched, so that after a
/// failure or a kill a repeat with the recorded style finishes the work; until the folders' titles are written,
/// what they show instead stays noted beside it. A style that cannot be recorded is not applied. The row
/// updates of one pass stand in one transaction: a kill leaves a pass whole or undone.
class FontManager {
public:
    FontManager(Mac& mac, SettingsManager& settings, DatabaseManager& database, DockManager& dock);

    const FontReplacer& fontReplacer() const { return m_fontReplacer; }

    /// A name that is no style's is refused with a log line and nothing changed.
    void applyFont(const std::string& fontName);
    void resetAllFonts();

private:
    [[nodiscard]] bool begin(const TitleStyle& style);
    void changeLaunchpad(const std::function<void(LaunchpadTitles&)>& change);

    const FontReplacer m_fontReplacer;
    Mac& m_mac;
    SettingsManager& m_settings;
    DatabaseManager& m_database;
    DockManager& m_dock;
};

} // namespace tavrik
