#pragma once

#include "changes/StagedChanges.h"

#include <set>
#include <string>

namespace tavrik {

/// Which rows of a list two states of the staged changes may show differently.
struct StagedDifference {
    std::set<std::string> icons;      ///< applications whose own entries differ
    std::set<std::string> themeIcons; ///< applications for which an icon of a theme is hidden or deleted
    bool isAboutThemes = false;       ///< whole themes go or stay, with icons for any application

    bool empty() const { return icons.empty() && themeIcons.empty() && !isAboutThemes; }
};

/// Pure.
StagedDifference differenceOf(const StagedChanges& one, const StagedChanges& other);

} // namespace tavrik
