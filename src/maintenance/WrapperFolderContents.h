#pragma once

#include "platform/Path.h"
#include "platform/Result.h"

#include <string>
#include <vector>

namespace tavrik {

class FileManager;

/// What lies in the wrapper folder, by whose it is. What is not known for certain to be the program's is
/// somebody else's, and is left alone.
struct WrapperFolderContents {
    bool isThere = false;              ///< as a folder of its own; a link in its place is somebody else's
    std::vector<std::string> wrappers; ///< folders of links, whole or in part
    std::vector<std::string>
        notes; ///< the warning, and what the Finder and the file system keep about the rest
    std::vector<std::string> foreign;

    /// Whether a path below the folder is, or was, a wrapper's.
    bool isForeign(const MacPath& folder, const MacPath& path) const;
};

/// A missing folder is empty. Follows no link. Background thread; blocks on the disk.
Result<WrapperFolderContents> readWrapperFolder(const FileManager& files, const MacPath& folder);

} // namespace tavrik
