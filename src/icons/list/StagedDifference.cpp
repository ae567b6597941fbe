#include "icons/list/StagedDifference.h"

#include "themes/ThemeIconName.h"

#include <algorithm>
#include <map>
#include <utility>

namespace tavrik {

namespace {

template<typename Value>
void addDifferentKeys(const std::map<std::string, Value>& one, const std::map<std::string, Value>& other,
                      std::set<std::string>& keys) {
    for (const auto& [key, value] : one) {
        const auto found = other.find(key);
        if (found == other.end() || found->second != value)
            keys.insert(key);
    }
    for (const auto& [key, value] : other) {
        if (!one.contains(key))
            keys.insert(key);
    }
}

/// Theme's id and file name of each icon that is not offered any more.
std::set<std::pair<std::string, std::string>> withheldIcons(const StagedChanges& changes) {
    std::set<std::pair<std::string, std::string>> icons;
    for (const ThemeIconHide& hide : changes.pendingThemeIconHides)
        icons.emplace(hide.themeID, hide.iconFileName);
    for (const auto& [themeID, names] : changes.pendingThemeIconDeletions) {
        for (const std::string& name : names)
            icons.emplace(themeID, name);
    }
    return icons;
}

} // namespace

StagedDifference differenceOf(const StagedChanges& one, const StagedChanges& other) {
    StagedDifference difference;
    addDifferentKeys(one.pendingChanges, other.pendingChanges, difference.icons);
    addDifferentKeys(one.markedForDeletion, other.markedForDeletion, difference.icons);

    const auto withheld = withheldIcons(one);
    const auto otherWithheld = withheldIcons(other);
    std::vector<std::pair<std::string, std::string>> different;
    std::ranges::set_symmetric_difference(withheld, otherWithheld, std::back_inserter(different));
    for (const auto& [themeID, name] : different) {
        if (auto bundleID = bundleIDOfIcon(name))
            difference.themeIcons.insert(std::move(*bundleID));
    }
    difference.isAboutThemes = one.pendingThemeDeletions != other.pendingThemeDeletions;
    return difference;
}

} // namespace tavrik
