#pragma once

#include "model/ApplicationInfo.h"
#include "platform/Path.h"
#include "platform/Result.h"
#include "themes/Theme.h"
#include "themes/ThemeLibrary.h"

#include <QImage>

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tavrik {

class AppManager;
class HiddenThemeIcons;
class IconStore;
class NotificationCenter;
class PendingChangesManager;
class SettingsManager;
struct Mac;

/// Posted on the main thread when the list of themes, or whether one is being applied, has changed.
inline constexpr std::string_view kThemesUpdated = "ThemesUpdated";

/// What an application of a theme came to.
struct ThemeApplication {
    std::size_t applied = 0;
    std::vector<std::string> failed; ///< a sentence each: an image that could not be read or saved
};

/// The library of themes as the interface sees it: lists them, makes and renames them, fills them with icons,
/// and applies one by staging its icons. Deleting and hiding are staged with PendingChangesManager and carried
/// out with `library` by the apply.
///
/// `installedThemes` and `isApplyingTheme` belong to the main thread and change there. Operations block on the
/// disk and are called off the main thread; they cross to it by themselves for what changes there.
class ThemeManager {
public:
    ThemeManager(Mac& mac, SettingsManager& settings, AppManager& apps, IconStore& icons,
                 HiddenThemeIcons& hidden, PendingChangesManager& pendingChanges,
                 NotificationCenter& notifications);

    /// Makes the folder of the themes when it is missing, and loads them. To be called once before the rest.
    void open();

    const MacPath& themesDirectory() const { return m_library.path(); }

    const std::vector<Theme>& installedThemes() const { return m_installedThemes; }

    bool isApplyingTheme() const { return m_isApplyingTheme; }

    ThemeLibrary& library() { return m_library; }

    void loadThemes();

    /// The theme made. With `moveActiveIcons` the icons that the user has selected are copied into it; a copy
    /// that fails is logged and the theme stands.
    Result<Theme> createTheme(const std::string& name, bool moveActiveIcons);

    Status updateTheme(const Theme& theme, const std::string& newName);

    /// How many icons were copied.
    std::size_t moveSelectedIcons(const Theme& to);

    /// A picture for an application, squared to 1024 pixels.
    Status addIcon(const QImage& image, const std::string& bundleID, const Theme& to);

    /// Stages the theme's icon for every installed application that it has one for, in one write of the
    /// recovery file, and chooses it. An application whose row has the very same icon already gets no second
    /// one: that one is chosen. Decodes and scales on all cores; seconds for hundreds.
    ThemeApplication applyTheme(const Theme& theme);

private:
    Mac& m_mac;
    SettingsManager& m_settings;
    AppManager& m_apps;
    IconStore& m_icons;
    HiddenThemeIcons& m_hidden;
    PendingChangesManager& m_pendingChanges;
    NotificationCenter& m_notifications;
    ThemeLibrary m_library;
    std::vector<Theme> m_installedThemes;
    bool m_isApplyingTheme = false;
};

} // namespace tavrik
