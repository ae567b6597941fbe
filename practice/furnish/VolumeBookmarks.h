#pragma once

#include "platform/Bytes.h"
#include "platform/Date.h"
#include "platform/Path.h"
#include "platform/Result.h"

namespace tavrik::practice {

/// A bookmark as the Dock makes it, for Launchpad or a tile, to a path of the volume whose folder of the host
/// this is. `created` is the target's date of birth. An error when nothing is there.
Result<Bytes> systemBookmark(const HostPath& root, const MacPath& path, Date created);

/// The same for something that was once in an existing folder and is gone.
Result<Bytes> deadBookmark(const HostPath& root, const MacPath& path, Date created);

} // namespace tavrik::practice
