#pragma once

#include "platform/Path.h"

namespace tavrik {

class FileManager;

/// Whether a path leads, as it stands or through a link in it, to a volume below "/Volumes" that is not mounted
/// now. What is on such a volume is not gone. Blocks on the disk; any thread.
bool isOnMissingVolume(const FileManager& files, const MacPath& path);

} // namespace tavrik
