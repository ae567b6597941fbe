#pragma once

#include "model/AppIcon.h"
#include "platform/Path.h"

#include <set>
#include <string>
#include <vector>

namespace tavrik {

/// One application of the catalogue.
struct ApplicationInfo {
    std::string id;       ///< a UUID, fresh for every load; identity in lists
    std::string name;     ///< the title in Launchpad
    std::string bundleID; ///< trimmed of white space and newlines
    AppIcon icon;
    MacPath path; ///< the bundle; for a wrapper's row, the application it stands for
    bool isIOSApp = false;
    bool isUnsupportedApp = false; ///< listed as such, or outside the standard locations
    std::vector<MacPath> permanentIconPaths;
    std::vector<MacPath> pendingAdditionPaths;
    std::set<int> hiddenPermanentIndices;
    int selectedIconIndex = -1; ///< -1 = the application's own icon
    std::vector<MacPath> themeIcons;

    bool operator==(const ApplicationInfo&) const = default;
};

} // namespace tavrik
