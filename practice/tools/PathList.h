#pragma once

#include "platform/FileManager.h"

#include <functional>
#include <vector>

namespace tavrik::practice {

/// Changes a list of paths that the volume keeps as a property list, made when missing. The change says whether
/// there is anything to write. An error, and the list as it was, when it is damaged or cannot be written.
Status changePathList(FileManager& files, const MacPath& list,
                      const std::function<bool(std::vector<MacPath>&)>& change);

} // namespace tavrik::practice
