#include "cli/ThemeLookup.h"

#include "cli/NearestNames.h"
#include "cli/Staged.h"
#include "fonts/PlainNames.h"

#include <algorithm>

namespace tavrik {

ExitCode openThemes(Companion& companion, Access access) {
    if (const ExitCode opened = companion.open(access); opened != ExitCode::done)
        return opened;
    ThemeManager& themes = companion.managers().themes;
    if (access != Access::writing) {
        themes.loadThemes();
        return ExitCode::done;
    }
    themes.library().removeLeftovers();
    themes.open();
    return takeUpStaged(companion);
}

std::vector<Theme> installedThemes(Companion& companion) {
    return companion.onMain([&] { return companion.managers().themes.installedThemes(); });
}

std::variant<Theme, ExitCode> findTheme(Companion& companion, const std::string& nameOrID) {
    const std::vector<Theme> themes = installedThemes(companion);
    if (themes.empty())
        return companion.fail("There are no themes yet. \"tavrikctl theme create NAME\" makes one, \"tavrikctl "
                              "theme import-folder FOLDER\" makes one of pictures.");
    std::vector<const Theme*> similar;
    std::vector<NearName> names;
    for (const Theme& theme : themes) {
        if (theme.name == nameOrID || theme.themeID == nameOrID)
            return theme;
        if (isSameIgnoringCase(theme.name, nameOrID))
            similar.push_back(&theme);
        const bool begins = isSameIgnoringCase(theme.name.substr(0, nameOrID.size()), nameOrID);
        names.push_back({begins ? 0 : nameDistance(nameOrID, theme.name), "\"" + theme.name + "\""});
    }
    if (similar.size() == 1)
        return *similar.front();
    std::string hint = hintOf(std::move(names), nameOrID);
    if (hint.empty())
        hint = " \"tavrikctl theme list\" shows them all.";
    return companion.fail("There is no theme \"" + nameOrID + "\"." + hint);
}

std::vector<std::string> iconFilesOf(Companion& companion, const Theme& theme, const std::string& bundleID) {
    const ThemeLibrary& library = companion.managers().themes.library();
    std::vector<std::string> names;
    while (const auto icon = library.iconFor(theme.themeID, bundleID, {names.begin(), names.end()}))
        names.push_back(icon->name());
    return names;
}

std::string noSuchThemeIcon(Companion& companion, const Theme& theme, const std::string& bundleID) {
    std::vector<NearName> names;
    for (const ThemeIcon& icon : companion.managers().themes.library().icons(theme.themeID))
        names.push_back({nameDistance(bundleID, icon.bundleID), icon.bundleID});
    std::string hint = hintOf(std::move(names), bundleID);
    if (hint.empty())
        hint = " \"tavrikctl theme show\" lists those that it has.";
    return "The theme \"" + theme.name + "\" has no icon for \"" + bundleID + "\"." + hint;
}

} // namespace tavrik
