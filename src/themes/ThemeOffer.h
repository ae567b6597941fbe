#pragma once

#include "changes/StagedChanges.h"
#include "themes/Theme.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace tavrik {

/// What decides which icons of themes the applications are offered, hidden and present files aside. A copy of
/// what lives on the main thread.
struct ThemeOffer {
    std::vector<Theme> themes; ///< in the order in which their icons are offered
    std::vector<ThemeIconHide> stagedHides;
    std::map<std::string, std::vector<std::string>> stagedIconDeletions; ///< theme's id to file names
    std::set<std::string> stagedThemeDeletions;                          ///< ids of themes

    bool operator==(const ThemeOffer&) const = default;
};

} // namespace tavrik
