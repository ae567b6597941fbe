#pragma once

#include "platform/Result.h"

#include <cstddef>
#include <functional>

namespace tavrik {

/// Calls `work` with the numbers from 0 to below `count`, side by side on the machine's cores, and returns when
/// all are done. The error of the smallest number that fails, whatever the order in which they end; those after
/// it may not have been called. Blocks.
Status onAllCores(std::size_t count, const std::function<Status(std::size_t)>& work);

} // namespace tavrik
