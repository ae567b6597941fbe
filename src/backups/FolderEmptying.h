#pragma once

#include "platform/Path.h"
#include "platform/Result.h"

#include <cstddef>
#include <set>
#include <string>
#include <vector>

namespace tavrik {

class FileManager;

struct Emptied {
    std::size_t removed = 0;
    std::vector<std::string> left; ///< names that could not be removed, those to be spared not among them
};

/// Removes everything in a folder but the names that are to be spared. Folders in it go with what they hold;
/// links are removed, never followed. A missing folder is empty. An error, with nothing removed, when the
/// folder is itself a link, no folder, or cannot be listed. A failure goes on with the next name. Background
/// thread; blocks on the disk.
Result<Emptied> emptyFolder(FileManager& files, const MacPath& folder,
                            const std::set<std::string>& spared = {});

} // namespace tavrik
