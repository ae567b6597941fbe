#pragma once

#include "changes/StagedChanges.h"
#include "cli/Json.h"
#include "themes/FolderImport.h"
#include "themes/ThemeCoverage.h"

#include <set>
#include <string>
#include <vector>

/// What the commands tell of themes: the records, and as JSON.
namespace tavrik {

struct ListedTheme {
    Theme theme;
    std::size_t icons = 0;
    bool isToBeDeleted = false;
};

struct ShownThemeIcon {
    ThemeIcon icon;
    std::string state; ///< empty, "hidden", "to be hidden" or "to be deleted"
};

std::vector<ShownThemeIcon> iconsInWords(const std::vector<ThemeIcon>& icons,
                                         const std::set<std::string>& hidden, const StagedChanges& staged,
                                         const std::string& themeID);

QJsonArray toJson(const std::vector<ListedTheme>& themes);
/// With its "icons".
QJsonObject toJson(const Theme& theme, const std::vector<ShownThemeIcon>& icons);
/// Applications by bundle identifier.
QJsonObject toJson(const Theme& theme, const ThemeCoverage& coverage);
QJsonObject toJson(const FolderImportReport& report);

} // namespace tavrik
