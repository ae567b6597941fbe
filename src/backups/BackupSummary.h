#pragma once

#include "backups/BackupContents.h"
#include "platform/Result.h"
#include "system/LaunchpadLayout.h"

#include <string>
#include <vector>

namespace tavrik {

/// What a person would recognise of a pair of stores.
struct LayoutSummary {
    struct Tile {
        std::string label;
        std::string bundleID; ///< empty where the tile has none

        bool operator==(const Tile&) const = default;
    };

    LaunchpadLayout launchpad;
    std::vector<Tile> dock; ///< in Dock order
};

/// Reads a backup's contents. The error is a sentence.
Result<LayoutSummary> summaryOf(const BackupContents& contents);

/// The same of a database that is open.
Result<LayoutSummary> summaryOf(ByteView dockPlist, sqlite::Connection& launchpadDatabase);

/// How one layout becomes the other.
struct LayoutDifferences {
    struct Move {
        std::string name;
        std::string from; ///< "page 2", "folder Office"
        std::string to;

        bool operator==(const Move&) const = default;
    };

    std::vector<std::string> onlyBefore; ///< applications, by name
    std::vector<std::string> onlyAfter;
    std::vector<Move> moved;
    std::vector<std::string> tilesOnlyBefore;
    std::vector<std::string> tilesOnlyAfter;
    bool isDockReordered = false; ///< the tiles of both stand in another order

    bool empty() const;
};

/// Applications are the same when their identifiers are, tiles likewise, or their labels where there is none.
/// The place of an application is its page, or the folder's name; its order within it is not looked at.
LayoutDifferences differences(const LayoutSummary& before, const LayoutSummary& after);

} // namespace tavrik
