#pragma once

#include "platform/Path.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tavrik {

/// What is staged for the icons of one application.
struct IconChange {
    /// What its row shows: the visible permanent icons, then the pending ones.
    std::vector<MacPath> iconPaths{};
    /// Place in `iconPaths`, or behind them among the theme icons offered; nothing = the application's own
    /// icon.
    std::optional<int> selectedIndex{};

    bool operator==(const IconChange&) const = default;
};

/// Where the chosen icon stands in another row of the same application; a theme icon keeps its distance from
/// the row's end. Nothing when that row does not have it.
std::optional<int> selectionIn(const std::vector<MacPath>& row, const IconChange& change);

struct ThemeIconHide {
    std::string themeID;
    std::string iconFileName; ///< bundle identifier + ".png"

    bool operator==(const ThemeIconHide&) const = default;
};

/// Everything that is staged and not applied. A value: the apply works on a copy.
struct StagedChanges {
    std::map<std::string, IconChange> pendingChanges; ///< by bundle identifier
    std::vector<ThemeIconHide> pendingThemeIconHides;
    std::map<std::string, std::vector<std::string>> pendingThemeIconDeletions; ///< theme's id to file names
    std::set<std::string> pendingThemeDeletions;                               ///< ids of themes
    /// Numbers of the permanent icons that the user removed, by bundle identifier. They stay on disk, out of
    /// sight, until the apply deletes them.
    std::map<std::string, std::set<int>> markedForDeletion;
    /// Of `pendingChanges`, the applications of which an apply was interrupted. What the settings say of them
    /// need not be what the Dock shows, so their entries stay even when they equal it.
    std::set<std::string> unfinished;
    std::optional<std::string> pendingFont; ///< a styled alphabet
    bool pendingReset = false;              ///< all names back to plain text

    bool empty() const;

    bool operator==(const StagedChanges&) const = default;
};

} // namespace tavrik
