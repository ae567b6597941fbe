#include "platform/macos/MacosBookmarks.h"

#include "platform/BookmarkPath.h"
#include "platform/FileManager.h"
#include "platform/FileURL.h"
#include "platform/macos/FoundationText.h"

#include <cerrno>

namespace tavrik::macos {

namespace {

const MacPath kBookmark{"A bookmark"};

NSData* toNSData(ByteView bytes) {
    return [NSData dataWithBytes:bytes.data() length:bytes.size()];
}

} // namespace

Result<Bytes> MacosBookmarks::make(const MacPath& target) const {
    @autoreleasepool {
        NSURL* const url = toNSURL(target);
        if (!url)
            return Error{target.string() + ": no path", EINVAL};
        NSError* error = nil;
        NSData* const data = [url bookmarkDataWithOptions:NSURLBookmarkCreationSuitableForBookmarkFile
                           includingResourceValuesForKeys:nil
                                            relativeToURL:nil
                                                    error:&error];
        if (!data)
            return toError(target, error);
        const auto* const bytes = static_cast<const std::uint8_t*>(data.bytes);
        return Bytes(bytes, bytes + data.length);
    }
}

Result<MacPath> MacosBookmarks::resolve(ByteView bookmark) const {
    @autoreleasepool {
        NSError* error = nil;
        BOOL isStale = NO;
        NSURL* const url = [NSURL
            URLByResolvingBookmarkData:toNSData(bookmark)
                               options:NSURLBookmarkResolutionWithoutUI | NSURLBookmarkResolutionWithoutMounting
                         relativeToURL:nil
                   bookmarkDataIsStale:&isStale
                                 error:&error];
        MacPath path(toString(url.path));
        if (path.empty())
            return toError(kBookmark, error);
        return path;
    }
}

Result<MacPath> MacosBookmarks::recordedPath(ByteView bookmark) const {
    return pathInBookmark(bookmark);
}

std::string MacosBookmarks::fileURL(const MacPath& path) const {
    return fileURLOf(path, m_files);
}

} // namespace tavrik::macos
