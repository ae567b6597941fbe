#pragma once

#include <cstdint>

namespace tavrik {

/// A row of the Launchpad database's `items` table.
enum class RowID : std::int64_t {};

/// The bit of `items.flags` that marks an item which Launchpad hides.
inline constexpr std::int32_t kHiddenFlag = 128;

} // namespace tavrik
