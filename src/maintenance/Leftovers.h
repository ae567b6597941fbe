#pragma once

#include "platform/Path.h"

#include <vector>

namespace tavrik {

struct ApplyServices;

/// Files and folders of the program's own that a kill may leave and that nothing needs: temporaries that were
/// to replace a file, copies that did not get to their end, plain copies of a database, and themes that were
/// being made or removed. Nothing that holds a picture or an answer of the person's, and nothing behind a
/// symbolic link. Changes nothing. Background thread; blocks on the disk.
std::vector<MacPath> leftovers(const ApplyServices& with);

} // namespace tavrik
