#pragma once

#include "platform/FileManager.h"
#include "platform/Path.h"
#include "platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

/// What Launchpad shows, as plain records.
namespace tavrik::practice {

struct LaunchpadApp {
    std::int64_t row = 0;
    std::string title;
    std::string bundleID; ///< as stored
    MacPath path;         ///< that the bookmark leads to; empty when it leads nowhere

    bool operator==(const LaunchpadApp&) const = default;
};

struct LaunchpadFolder {
    std::string title;
    std::vector<std::vector<LaunchpadApp>> pages;

    bool operator==(const LaunchpadFolder&) const = default;
};

using LaunchpadItem = std::variant<LaunchpadApp, LaunchpadFolder>;

struct LaunchpadLayout {
    std::vector<std::vector<LaunchpadItem>> pages;
    std::size_t pagesLeftOut = 0;
};

/// Reads the layout and resolves its bookmarks, without writing. Hidden rows are left out, and of rows with one
/// bundle identifier all but the first in order of placement. Only so many pages are read; the others are
/// counted. An error when the database cannot be read at all. Blocks on the disk.
Result<LaunchpadLayout> readLaunchpadLayout(const FileManager& files, const HostPath& database,
                                            std::size_t mostPages);

} // namespace tavrik::practice
