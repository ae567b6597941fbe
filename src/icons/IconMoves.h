#pragma once

#include "platform/Path.h"
#include "platform/Result.h"

#include <vector>

/// Icon files together with what hangs on them, their thumbnail files and what the cache keeps of them. The
/// icon file itself goes first, then the cache, then the thumbnails, so that thumbnails which are being made
/// meanwhile come to nothing; and no icon is put where another one's thumbnails lie. After a kill an icon is at
/// its old or its new place, and the worst that is left are thumbnails under a number that has no icon. Blocks
/// on the disk.
namespace tavrik {

class FileManager;
class IconCache;

struct NumberedIcon {
    int number = 0;
    MacPath path;
};

/// Names of a renumbering that went by way of "temp_icon_3.png" and was interrupted.
enum class Temporaries { skip, include };

/// The icons in a folder by number; where two have the same, the shorter name comes first. None when the folder
/// is missing.
Result<std::vector<NumberedIcon>> numberedIcons(const FileManager& files, const MacPath& folder,
                                                Temporaries temporaries = Temporaries::skip);

/// Whether an icon was there to be removed. A folder of that name is left alone, and an error.
Result<bool> removeIcon(FileManager& files, IconCache& cache, const MacPath& icon);

/// Never overwrites an icon. After a failure the icon is where it was.
Status moveIcon(FileManager& files, IconCache& cache, const MacPath& from, const MacPath& to);

/// Removes the thumbnails that an earlier icon of this path left.
Status clearThumbnails(FileManager& files, const MacPath& icon);

/// Gives the icons of a folder the numbers from 0 on in their order, and puts the folder on stable storage.
/// Stops at the first failure, so that the order holds at every moment. Safe to repeat.
Status renumberIcons(FileManager& files, IconCache& cache, const MacPath& folder);

} // namespace tavrik
