#pragma once

#include "model/ApplicationInfo.h"
#include "platform/Path.h"
#include "platform/Result.h"
#include "themes/Theme.h"
#include "themes/ThemeLibrary.h"
#include "themes/ThemeOffer.h"

#include <QImage>

#include <functional>
#include <map>
#include <mutex>
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
    std::vector<std::string> failed;        ///< a sentence each: an image that could not be read or saved
    std::vector<ApplicationInfo> leftAlone; ///< the theme has an icon for them, but they cannot be restyled
};

/// The library of themes as the interface sees it: lists them, makes and renames them, fills them with icons,
/// and applies one by staging its icons. Deleting and hiding are staged with PendingChangesManager and carried
/// out with `library` by the apply.
///
/// A kill leaves a theme as it was or as it should be. Names are told apart exactly, byte by byte; no two
/// installed themes get the same one.
///
/// `installedThemes` and `isApplyingTheme` belong to the main thread and change there. Operations block on the
/// disk and are called off the main thread; they cross to it by themselves for what changes there.
class ThemeManager {
public:
    ThemeManager(Mac& mac, SettingsManager& settings, AppManager& apps, IconStore& icons,
                 HiddenThemeIcons& hidden, PendingChangesManager& pendingChanges,
                 NotificationCenter& notifications);

    /// Makes the folder of the themes when it is missing, and loads them. To be called once before the rest, on
    /// any thread; a program that may not write calls `loadThemes` in its place.
    void open();

    const MacPath& themesDirectory() const { return m_library.path(); }

    /// In the order in which they were made.
    const std::vector<Theme>& installedThemes() const { return m_installedThemes; }

    bool isApplyingTheme() const { return m_isApplyingTheme; }

    ThemeLibrary& library() { return m_library; }

    void loadThemes();

    /// The theme made; it is there without icons first. With `moveActiveIcons` the icons that the user has
    /// selected are copied into it; a copy that fails is logged and the theme stands.
    Result<Theme> createTheme(const std::string& name, bool moveActiveIcons);
    /// The same with these icons, by file name; there whole or not at all.
    Result<Theme> createTheme(const std::string& name, const std::map<std::string, Bytes>& icons);

    /// Whether a new theme could have this name now; an error is the one that `createTheme` would give.
    Status checkNewName(const std::string& name) const;

    /// Takes in a theme with these icons, content by file name. It keeps its date; its id, unless that is
    /// taken; and its name, unless another theme has it: then a number is added, "Ocean 2". There whole or not
    /// at all.
    Result<Theme> installTheme(const Theme& theme, const std::map<std::string, Bytes>& icons);

    /// Gives a theme another name, which may be its own. Its id and date stay.
    Status updateTheme(const Theme& theme, const std::string& newName);

    /// Takes a theme from the disk and from the list, and forgets which of its icons are hidden. Fine when
    /// there is none. For the apply of staged deletions: safe to repeat after a kill.
    Status removeTheme(const std::string& themeID);

    /// Copies the permanent icon that the settings name for each installed application, one file after the
    /// other. What is only staged does not count, nor does a selected icon of a theme. How many were copied.
    std::size_t moveSelectedIcons(const Theme& to);

    /// A picture for an application, squared to 1024 pixels. A staged deletion of the icon in its place is
    /// taken back.
    Status addIcon(const QImage& image, const std::string& bundleID, const Theme& to);

    /// Stages the theme's icon for every installed application that it has one for, in one write of the
    /// recovery file, and chooses it. An application whose row has the very same icon already gets no second
    /// one: that one is chosen. Decodes and scales on all cores; seconds for hundreds.
    ThemeApplication applyTheme(const Theme& theme);

    /// The icons that the installed themes offer to an application, in the order of the themes: those that are
    /// hidden, or staged to be hidden or deleted, are left out. Looks at each theme's folder.
    std::vector<MacPath> themeIconsFor(const std::string& bundleID) const;

    /// What decides which icons are offered, as it is now. Any thread; crosses to the main one.
    ThemeOffer offer() const;

    /// The same icons for all applications at once, by bundle identifier; those without any are left out. Lists
    /// the folder of each theme once. Any thread, and never waits for another.
    std::map<std::string, std::vector<MacPath>> themeIcons(const ThemeOffer& offer) const;

private:
    void readThemes(); ///< with the lock held
    Result<Theme> makeTheme(const std::string& name, const std::map<std::string, Bytes>& icons);
    void change(const std::function<void(std::vector<Theme>&)>& how);
    std::vector<Theme> listed() const;
    bool isTaken(const std::string& themeID) const;
    Status putIcon(const Result<Bytes>& png, const std::string& bundleID, const Theme& to);
    struct WantedIcon;
    void setApplyingTheme(bool isApplying);
    std::vector<WantedIcon> wantedIcons(const Theme& theme, ThemeApplication& answer);
    Result<MacPath> iconOf(const WantedIcon& wanted);

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
    std::mutex m_naming; ///< held from the look at the disk or the names to the change of the list
};

} // namespace tavrik
