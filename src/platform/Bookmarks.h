#pragma once

#include "platform/Bytes.h"
#include "platform/Path.h"
#include "platform/Result.h"

#include <string>

namespace tavrik {

/// Bookmark data: how the Dock and Launchpad remember where an application is. Opaque to the program.
class Bookmarks {
public:
    virtual ~Bookmarks() = default;

    /// A bookmark suitable for a bookmark file (option 1024), without resource keys and relative URL. The
    /// target must exist.
    virtual Result<Bytes> make(const MacPath& target) const = 0;

    /// The absolute path that the data leads to, without user interface and without a relative URL; staleness
    /// is ignored. An error when the data is damaged or nothing is there. Any thread; cheap enough for every
    /// row of a listing.
    virtual Result<MacPath> resolve(ByteView bookmark) const = 0;

    /// The path that the data records, whether or not anything is there. An error when the data is damaged. Any
    /// thread; pure.
    virtual Result<MacPath> recordedPath(ByteView bookmark) const = 0;

    /// The absolute text of a file URL, percent-encoded; a folder's ends in "/":
    /// "file:///Applications/Visual%20Studio%20Code.app/".
    virtual std::string fileURL(const MacPath& path) const = 0;
};

} // namespace tavrik
