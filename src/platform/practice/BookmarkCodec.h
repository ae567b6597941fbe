#pragma once

#include "platform/Bytes.h"
#include "platform/Date.h"
#include "platform/Path.h"
#include "platform/Result.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// The Mac's bookmark data, written and read byte for byte as the system does. Pure; any thread.
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
    std::optional<std::string> homeUser; ///< inside a home folder: its user; adds the three keys of a home
    std::uint32_t homeUserID = 501;
};

Bytes encodeBookmark(const BookmarkTarget& target);

/// The path that a bookmark records, from "/" (for a volume's root its mount path). An error for what is
/// damaged, names nothing, or holds a component that is
/// "", ".", ".." or has a "/" or NUL in it. Whether anything is there is not looked at. The container of a
/// Finder alias file is accepted too.
Result<MacPath> decodeBookmarkPath(ByteView bookmark);

} // namespace tavrik::practice
