#pragma once

#include "platform/Path.h"
#include "platform/Result.h"
#include "themes/FolderImport.h"

#include <string_view>

namespace tavrik {

/// Whether a file is a picture by its name.
bool isPictureName(std::string_view fileName);

/// The files of a host's folder that are pictures by their names, links to such files among them; folders in
/// it are not looked into. An error, in a sentence, when it is no folder or cannot be read, and when it holds
/// no picture. Blocks on the disk.
Result<PictureFolder> pictureFolderAt(const HostPath& folder);

} // namespace tavrik
