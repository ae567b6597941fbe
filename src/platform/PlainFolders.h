#pragma once

#include "platform/Path.h"
#include "platform/Result.h"

namespace tavrik {

class FileManager;

/// Done when `folder` and all above it up to `root` are folders or not there yet; an error when one is a
/// symbolic link or a file, so that nothing is read, written or removed behind it. Blocks on the disk; any
/// thread.
Status checkPlainFolders(const FileManager& files, const MacPath& root, const MacPath& folder);

/// Makes a folder below `root`, and what is missing above it, on stable storage. Fine when it is there; the
/// same errors as above.
Status createPlainFolder(FileManager& files, const MacPath& root, const MacPath& folder);

} // namespace tavrik
