#pragma once

#include "platform/Bytes.h"
#include "platform/Date.h"
#include "platform/Path.h"
#include "platform/Result.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// The Mac's bookmark data, written byte for byte as the system does. Pure; any thread.
namespace tavrik::practice {

/// What goes into a bookmark.
struct BookmarkTarget {
    std::vector<std::string> components; ///< the path from "/", at least one
    std::vector<std::uint64_t> fileIDs;  ///< one for each component
    Date created;
    bool isFolder = true;
    std::uint32_t options = 1024; ///< 1024 for a bookmark file, 0x20000000 for the Dock's own
    std::string volumeName = "Macintosh HD";
    std::string volumeUUID;
    std::uint64_t volumeSize = 0; ///< bytes
    Date volumeCreated;
    /// Inside a home folder: its user. Adds the three keys of a home.
    std::optional<std::string> homeUser = std::nullopt;
    std::uint32_t homeUserID = 501;
};

Bytes encodeBookmark(const BookmarkTarget& target);

} // namespace tavrik::practice
