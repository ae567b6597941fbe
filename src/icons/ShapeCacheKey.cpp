#include "icons/ShapeCacheKey.h"

#include <algorithm>
#include <cstdio>

namespace tavrik {

std::string shapeCacheKey(std::uint64_t byteCount, ByteView beginning) {
    std::uint64_t hash = byteCount;
    for (const std::uint8_t byte : beginning.first(std::min(beginning.size(), kShapeCacheKeyBytes)))
        hash = hash * 31 + byte;

    char digits[17];
    std::snprintf(digits, sizeof digits, "%016llX", static_cast<unsigned long long>(hash));
    return digits;
}

} // namespace tavrik
