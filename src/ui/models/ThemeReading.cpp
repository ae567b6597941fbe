#include "ui/models/ThemeReading.h"

#include "app/Managers.h"

#include <algorithm>

namespace tavrik {

std::vector<std::string> ThemeFacts::filesOf(const std::string& bundleID) const {
    const auto icon = std::ranges::find(icons, bundleID, &ThemeIcon::bundleID);
    if (icon == icons.end())
        return {};
    std::vector<std::string> files{icon->file.name()};
    if (inBothFormats.contains(bundleID))
        files.push_back(bundleID + std::string(kThemeIconExtensions.back()));
    return files;
}

const ThemeFacts* ThemeReading::find(const std::string& themeID) const {
    const auto found =
        std::ranges::find(themes, themeID, [](const ThemeFacts& facts) { return facts.theme.themeID; });
    return found == themes.end() ? nullptr : &*found;
}

ThemeReading readThemes(Managers& managers, const std::vector<Theme>& themes) {
    const ThemeLibrary& library = managers.themes.library();
    ThemeReading reading{.apps = managers.apps.loadApplications(), .themes = {}};
    for (const Theme& theme : themes) {
        ThemeFacts facts{.theme = theme,
                         .icons = library.icons(theme.themeID),
                         .inBothFormats = {},
                         .hidden = managers.hiddenThemeIcons.hidden(theme.themeID)};
        for (const ThemeIcon& icon : facts.icons) {
            if (library.iconFor(theme.themeID, icon.bundleID, {icon.file.name()}))
                facts.inBothFormats.insert(icon.bundleID);
        }
        reading.themes.push_back(std::move(facts));
    }
    return reading;
}

} // namespace tavrik
