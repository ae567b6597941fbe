#pragma once

#include "changes/StagedChanges.h"
#include "platform/Path.h"
#include "ui/models/ThemeReading.h"

#include <functional>
#include <string>
#include <vector>

namespace tavrik {

/// What a theme means for one application.
enum class ThemeIconState { covered, hidden, lacking, notRestylable, withoutApplication };

/// An application in the view of one theme; or an icon of none.
struct ThemeIconRow {
    std::string bundleID;
    std::string appName; ///< the identifier when the application is not installed
    MacPath appPath;     ///< empty when it is not installed
    MacPath icon;        ///< the theme's; empty when it lacks one
    ThemeIconState state{};
    bool isToBeHidden = false;
    bool isToBeRemoved = false;
    std::string refusal; ///< why the application cannot be restyled, in a sentence

    const std::string& key() const { return bundleID; }

    bool operator==(const ThemeIconRow&) const = default;
};

/// A row for each application that could have an icon or has one, in their order, then one for each icon
/// without an application. `refusalOf` answers for those that cannot be restyled.
std::vector<ThemeIconRow> iconRows(const ThemeFacts& theme, const std::vector<ApplicationInfo>& apps,
                                   const StagedChanges& staged,
                                   const std::function<std::string(const ApplicationInfo&)>& refusalOf);

/// How many applications get the theme's icon, and how many could.
struct ThemeReach {
    int covered = 0;
    int restylable = 0;

    bool operator==(const ThemeReach&) const = default;
};

ThemeReach reachOf(const std::vector<ThemeIconRow>& rows);

} // namespace tavrik
