#pragma once

#include <compare>
#include <string>
#include <vector>

namespace tavrik {

struct ApplyStores;

/// One thing that is otherwise after an apply.
struct StoreChange {
    enum class Kind {
        iconFile,     ///< of an application: moved, renamed or deleted
        selectedIcon, ///< its number
        wrapper,      ///< a bundle in the wrapper folder, made or removed
        strayRow,     ///< a wrapper's row in Launchpad that stands in no one's place
        shown,        ///< what stands in an application's place in Launchpad: the original or its wrapper
        place,        ///< an application stands elsewhere, appeared or vanished
        title,        ///< of an application in Launchpad
        folderTitle,
        tile,      ///< where a tile of the Dock leads
        tileLabel, ///< of a tile
        hiddenThemeIcon,
        themeIcon, ///< deleted
        theme,     ///< deleted
    };

    Kind kind{};
    std::string subject; ///< a bundle identifier, a wrapper's file name, a folder's row, a theme's id
    std::string from;    ///< empty: nothing was there
    std::string to;      ///< empty: nothing is left

    auto operator<=>(const StoreChange&) const = default;
};

/// The kind in a word, as above.
std::string nameOf(StoreChange::Kind kind);

/// Sorted. Pure.
std::vector<StoreChange> changesBetween(const ApplyStores& before, const ApplyStores& after);

} // namespace tavrik
