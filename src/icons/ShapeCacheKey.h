#pragma once

#include "platform/Bytes.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace tavrik {

/// How much of a picture's data goes into its key, in bytes from the start.
inline constexpr std::size_t kShapeCacheKeyBytes = 100;

/// What the shape of an application's icon is remembered by: 16 hexadecimal digits made of the length of its
/// data, in bytes, and of its beginning. `beginning` may be longer than what counts. Pure; any thread.
std::string shapeCacheKey(std::uint64_t byteCount, ByteView beginning);

} // namespace tavrik
