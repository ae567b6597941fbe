#include "cli/Words.h"

#include "icons/IconFiles.h"
#include "model/ApplicationInfo.h"
#include "platform/PathRules.h"

#include <algorithm>
#include <set>

namespace tavrik {

namespace {

std::string chosen(const IconChange& change) {
    if (!change.selectedIndex)
        return "its own icon is chosen";
    const auto place = static_cast<std::size_t>(*change.selectedIndex);
    const std::string icon =
        place < change.iconPaths.size() ? change.iconPaths[place].name() : "an icon of a theme";
    return icon + " (index " + std::to_string(place) + ") is chosen";
}

std::string iconWords(const IconChange* change, const std::set<int>& marked) {
    std::string words;
    const auto add = [&words](const std::string& part) { words += (words.empty() ? "" : "; ") + part; };
    if (change) {
        const auto pending = static_cast<std::size_t>(std::ranges::count_if(
            change->iconPaths, [](const MacPath& path) { return isPendingIconPath(path); }));
        if (pending > 0)
            add(counted(pending, "new icon"));
    }
    if (!marked.empty()) {
        std::string names;
        for (const int index : marked)
            names += (names.empty() ? "" : ", ") + iconFileName(index);
        add(names + " to be deleted");
    }
    if (change)
        add(chosen(*change));
    return words;
}

} // namespace

AppNames namesOf(const std::vector<ApplicationInfo>& apps) {
    AppNames names;
    for (const ApplicationInfo& app : apps)
        names.emplace(app.bundleID, app.name);
    return names;
}

const std::string& nameIn(const AppNames& names, const std::string& bundleID) {
    const auto found = names.find(bundleID);
    return found == names.end() ? bundleID : found->second;
}

std::string counted(std::size_t count, const std::string& noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

std::vector<std::string> inWords(const StagedChanges& staged, const AppNames& names) {
    std::vector<std::string> lines;
    std::set<std::string> bundleIDs;
    for (const auto& [bundleID, change] : staged.pendingChanges)
        bundleIDs.insert(bundleID);
    for (const auto& [bundleID, indices] : staged.markedForDeletion)
        bundleIDs.insert(bundleID);
    for (const std::string& bundleID : bundleIDs) {
        const auto change = staged.pendingChanges.find(bundleID);
        const auto marked = staged.markedForDeletion.find(bundleID);
        lines.push_back(nameIn(names, bundleID) + ": " +
                        iconWords(change == staged.pendingChanges.end() ? nullptr : &change->second,
                                  marked == staged.markedForDeletion.end() ? std::set<int>() : marked->second) +
                        ".");
    }

    const auto addTheme = [&](const std::string& themeID, const std::string& what) {
        lines.push_back("Theme " + nameIn(names, themeID) + what);
    };
    for (const ThemeIconHide& hide : staged.pendingThemeIconHides)
        addTheme(hide.themeID, ": " + hide.iconFileName + " is to be hidden.");
    for (const auto& [themeID, iconFileNames] : staged.pendingThemeIconDeletions) {
        for (const std::string& name : iconFileNames)
            addTheme(themeID, ": " + name + " is to be deleted.");
    }
    for (const std::string& themeID : staged.pendingThemeDeletions)
        addTheme(themeID, " is to be deleted.");
    if (staged.pendingFont)
        lines.push_back("Names are to be written in " + *staged.pendingFont + ".");
    if (staged.pendingReset)
        lines.push_back("Names are to be plain text again.");
    return lines;
}

} // namespace tavrik
