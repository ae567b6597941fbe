#pragma once

#include "platform/Bytes.h"

#include <cstddef>
#include <cstdint>
#include <optional>

/// The chunks that a PNG consists of. Pure; any thread.
namespace tavrik::png {

inline constexpr std::uint8_t kSignature[] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
inline constexpr std::size_t kLargestChunk = 0x7FFFFFFF; ///< bytes of its data

/// A chunk's four letters as a number.
constexpr std::uint32_t chunkType(const char (&letters)[5]) {
    std::uint32_t type = 0;
    for (int i = 0; i < 4; ++i)
        type = type << 8 | static_cast<std::uint8_t>(letters[i]);
    return type;
}

struct Chunk {
    std::uint32_t type = 0;
    ByteView data;
    bool isIntact = false; ///< the checksum is right

    /// A reader that does not know it cannot show the picture.
    bool isCritical() const { return (type & 0x20000000) == 0; }
};

std::uint32_t bigEndian(ByteView bytes);

/// Walks over the chunks behind the signature, which the caller has seen.
class ChunkReader {
public:
    explicit ChunkReader(ByteView afterSignature) : m_rest(afterSignature) {}

    /// Nothing at the end, and where a chunk is longer than what is left.
    std::optional<Chunk> next();

private:
    ByteView m_rest;
};

void appendBigEndian(Bytes& bytes, std::uint32_t value);
void appendChunk(Bytes& file, std::uint32_t type, ByteView data);

} // namespace tavrik::png
