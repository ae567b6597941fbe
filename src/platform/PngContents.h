#pragma once

#include "platform/Bytes.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace tavrik::png {

/// How a picture is to be decoded.
enum class Way {
    none,  ///< not at all: it is damaged, cut short or no PNG
    quick, ///< by us
    qt,    ///< by Qt, which knows all the rest
};

/// What a walk over a PNG's chunks finds. The size is one that a picture can have: 1 to 2^31 - 1 each way.
struct Contents {
    Way way = Way::none;
    std::uint32_t width = 0; ///< pixels
    std::uint32_t height = 0;
    int depth = 0;                ///< bits a channel
    std::size_t pixelBytes = 0;   ///< 1 to 4 on the quick way: grey, grey and alpha, colours, colours and alpha
    std::vector<ByteView> pixels; ///< compressed, in pieces
};

/// The header alone, without the pixels. Nothing when it is missing or damaged. Pure; any thread.
std::optional<Contents> readHeader(ByteView data);

/// Walks over all chunks up to the closing one and checks their lengths and checksums. A picture is damaged
/// when a chunk that it cannot do without is. Pure; any thread.
Contents survey(ByteView data);

} // namespace tavrik::png
