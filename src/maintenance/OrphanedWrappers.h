#pragma once

#include "platform/Path.h"

#include <vector>

namespace tavrik {

struct ApplyServices;

/// The wrappers whose original is gone or lies in the Trash, by name. Changes nothing. Background thread;
/// blocks on the disk.
std::vector<MacPath> orphanedWrappers(const ApplyServices& with);

/// Deletes these wrappers and drops what the settings know of their swaps. What cannot be deleted is logged and
/// left. The caller restarts the Dock, which drops their rows then.
void removeOrphanedWrappers(const ApplyServices& with, const std::vector<MacPath>& wrappers);

} // namespace tavrik
