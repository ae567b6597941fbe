#pragma once

#include <cstddef>

namespace tavrik {

struct ApplyServices;

/// Brings Launchpad and the Dock back to what is applied already: writes the icon of every wrapper again, then
/// the styled alphabet in effect, and restarts the Dock. What is staged plays no part. Returns how many icons
/// were written. Background thread; seconds. Safe to repeat, also after a kill.
std::size_t manualRefresh(const ApplyServices& with);

} // namespace tavrik
