#pragma once

#include "platform/Path.h"
#include "platform/Result.h"

#include <set>

/// Clearing away of pending icons by the folder. No link is followed. Blocks on the disk; safe to repeat after
/// a failure or a kill, which leave the rest.
namespace tavrik {

class FileManager;
class IconCache;

/// Removes the folder of an application with all that is in it, and drops its icons from the cache. Fine when
/// there is none.
Status removeIconFolder(FileManager& files, IconCache& cache, const MacPath& folder);

/// Removes every icon that is not named, with its thumbnails, what killed writes left of icons and thumbnails,
/// thumbnails without an icon, and the folder itself when nothing else is in it. Other files stay.
void sweepIconFolder(FileManager& files, IconCache& cache, const MacPath& folder,
                     const std::set<MacPath>& named);

} // namespace tavrik
