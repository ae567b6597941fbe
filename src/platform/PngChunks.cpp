#include "platform/PngChunks.h"

#include <libdeflate.h>

namespace tavrik::png {

namespace {

constexpr std::size_t kNumber = 4; ///< bytes of a length, a type and a checksum each
constexpr std::size_t kAround = 3 * kNumber;

} // namespace

std::uint32_t bigEndian(ByteView bytes) {
    return std::uint32_t{bytes[0]} << 24 | std::uint32_t{bytes[1]} << 16 | std::uint32_t{bytes[2]} << 8 |
           bytes[3];
}

std::optional<Chunk> ChunkReader::next() {
    if (m_rest.size() < kAround)
        return std::nullopt;
    const std::size_t length = bigEndian(m_rest);
    if (length > kLargestChunk || length > m_rest.size() - kAround)
        return std::nullopt;
    const ByteView checked = m_rest.subspan(kNumber, kNumber + length);
    const std::uint32_t checksum = bigEndian(m_rest.subspan(2 * kNumber + length));
    m_rest = m_rest.subspan(kAround + length);
    return Chunk{bigEndian(checked), checked.subspan(kNumber),
                 libdeflate_crc32(0, checked.data(), checked.size()) == checksum};
}

void appendBigEndian(Bytes& bytes, std::uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.push_back(static_cast<std::uint8_t>(value >> shift));
}

void appendChunk(Bytes& file, std::uint32_t type, ByteView data) {
    appendBigEndian(file, static_cast<std::uint32_t>(data.size()));
    const std::size_t begin = file.size();
    appendBigEndian(file, type);
    file.insert(file.end(), data.begin(), data.end());
    appendBigEndian(file, libdeflate_crc32(0, file.data() + begin, file.size() - begin));
}

} // namespace tavrik::png
