#pragma once

#include "platform/Path.h"

#include <string>

namespace tavrik {

class FileManager;

/// The text of a file URL, as `Bookmarks::fileURL` promises it: every byte of the path that a URL's path may
/// not hold is percent-encoded, and names keep their normal form. Looks at the disk for the "/" at a folder's
/// end.
std::string fileURLOf(const MacPath& path, const FileManager& files);

} // namespace tavrik
