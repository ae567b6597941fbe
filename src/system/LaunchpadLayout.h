#pragma once

#include "model/RowID.h"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace tavrik {

namespace sqlite {
class Connection;
}

/// What stands where in a Launchpad database, in the order of its pages. Titles and identifiers as stored.
struct LaunchpadLayout {
    struct Application {
        RowID rowID{};
        std::string title;
        std::string bundleID;
        bool isHidden = false; ///< its row carries the hidden flag

        bool operator==(const Application&) const = default;
    };

    struct Folder {
        RowID rowID{};
        std::string title;
        std::vector<std::vector<Application>> pages;

        bool operator==(const Folder&) const = default;
    };

    using Item = std::variant<Application, Folder>;

    std::vector<std::vector<Item>> pages;

    bool operator==(const LaunchpadLayout&) const = default;
};

/// Reads the pages of the root that Launchpad shows; the holding page and the older roots are left out, and so
/// are pages that hold nothing. Nothing when the database cannot be read or has not the tables. Any database,
/// live or a copy; reads in one transaction.
std::optional<LaunchpadLayout> readLaunchpadLayout(sqlite::Connection& database);

} // namespace tavrik
