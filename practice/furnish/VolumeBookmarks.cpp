#include "practice/furnish/VolumeBookmarks.h"

#include "platform/PosixFileManager.h"
#include "platform/practice/BookmarkCodec.h"
#include "platform/practice/PracticeBookmarks.h"

#include <cstdint>

namespace tavrik::practice {

namespace {

/// "Without implicit security scope": what the Dock's own bookmarks carry.
constexpr std::uint32_t kDockOptions = 0x20000000;

/// Far above what a file system hands out.
constexpr std::uint64_t kGoneFileID = 0x0FFF'FFFF'0000'0000;

Bytes encoded(BookmarkTarget target, Date created) {
    target.created = created;
    target.options = kDockOptions;
    return encodeBookmark(target);
}

} // namespace

Result<Bytes> systemBookmark(const HostPath& root, const MacPath& path, Date created) {
    const Result<BookmarkTarget> target = describeForBookmark(PosixFileManager(root), path);
    if (!target)
        return target.error();
    return encoded(*target, created);
}

Result<Bytes> deadBookmark(const HostPath& root, const MacPath& path, Date created) {
    Result<BookmarkTarget> target = describeForBookmark(PosixFileManager(root), path.parent());
    if (!target)
        return target.error();
    target->components.push_back(path.name());
    target->fileIDs.push_back(kGoneFileID);
    return encoded(*target, created);
}

} // namespace tavrik::practice
