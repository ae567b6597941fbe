#pragma once

#include "model/ApplicationInfo.h"
#include "themes/ThemeLibrary.h"

#include <set>
#include <string>
#include <vector>

namespace tavrik {

/// What a theme means for the installed applications.
struct ThemeCoverage {
    std::vector<ApplicationInfo> covered;       ///< would get its icon
    std::vector<ApplicationInfo> lacking;       ///< has none in the theme, and could have
    std::vector<ApplicationInfo> hidden;        ///< has one that the user hid
    std::vector<ApplicationInfo> notRestylable; ///< has one, but cannot be restyled
    std::vector<ThemeIcon> withoutApplication;  ///< icons of no installed application
};

/// Each list in the order of `apps`, the last by file name. Pure.
ThemeCoverage coverageOf(const std::vector<ThemeIcon>& icons, const std::set<std::string>& hidden,
                         const std::vector<ApplicationInfo>& apps);

} // namespace tavrik
