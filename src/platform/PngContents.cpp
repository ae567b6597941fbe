#include "platform/PngContents.h"

#include "platform/PngChunks.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <optional>

namespace tavrik::png {

namespace {

/// Of a pixel of eight bits a channel; 0 for what the quick way does not know.
std::size_t pixelBytesOf(std::uint8_t colourType) {
    switch (colourType) {
    case 0: // grey
        return 1;
    case 4: // grey and alpha
        return 2;
    case 2: // red, green, blue
        return 3;
    case 6: // and alpha
        return 4;
    default:
        return 0;
    }
}

/// What stands behind the signature; nothing without one.
std::optional<ByteView> chunksOf(ByteView data) {
    if (data.size() < std::size(kSignature) ||
        !std::ranges::equal(kSignature, data.first(std::size(kSignature))))
        return std::nullopt;
    return data.subspan(std::size(kSignature));
}

/// Nothing when it is no header, or gives no size that a picture can have.
std::optional<Contents> parseHeader(const Chunk& chunk) {
    constexpr std::size_t headerSize = 13;
    constexpr std::uint32_t most = std::numeric_limits<std::int32_t>::max();
    if (chunk.type != chunkType("IHDR") || !chunk.isIntact || chunk.data.size() != headerSize)
        return std::nullopt;
    Contents contents;
    contents.width = bigEndian(chunk.data);
    contents.height = bigEndian(chunk.data.subspan(4));
    contents.pixelBytes = pixelBytesOf(chunk.data[9]);
    if (contents.width == 0 || contents.width > most || contents.height == 0 || contents.height > most)
        return std::nullopt;
    contents.depth = chunk.data[8];
    const bool isUsual = chunk.data[10] == 0 && chunk.data[11] == 0 && chunk.data[12] == 0; // not interlaced
    contents.way = contents.depth == 8 && isUsual && contents.pixelBytes > 0 ? Way::quick : Way::qt;
    return contents;
}

/// What the chunks that are no pixels say about how the pixels are to be seen.
class Colours {
public:
    void look(const Chunk& chunk) {
        switch (chunk.type) {
        case chunkType("sRGB"):
            m_namesSRGB = chunk.isIntact && chunk.data.size() == 1 && chunk.data[0] <= 3;
            m_isUnusual = m_isUnusual || !m_namesSRGB;
            break;
        case chunkType("gAMA"):
        case chunkType("cHRM"):
            m_namesOthers = true;
            break;
        case chunkType("tRNS"):
        case chunkType("iCCP"):
            m_isUnusual = true;
            break;
        default:
            m_isUnusual = m_isUnusual || chunk.isCritical();
        }
        m_isUnusual = m_isUnusual || !chunk.isIntact;
    }

    /// Whether the pixels are plain ones in sRGB. Beside its name, what else would describe colours counts
    /// nothing.
    bool arePlain() const { return !m_isUnusual && (m_namesSRGB || !m_namesOthers); }

private:
    bool m_namesSRGB = false;
    bool m_namesOthers = false;
    bool m_isUnusual = false;
};

} // namespace

std::optional<Contents> readHeader(ByteView data) {
    const auto chunks = chunksOf(data);
    const auto first = chunks ? ChunkReader(*chunks).next() : std::nullopt;
    return first ? parseHeader(*first) : std::nullopt;
}

Contents survey(ByteView data) {
    std::optional<Contents> contents = readHeader(data);
    if (!contents)
        return {};
    ChunkReader reader(*chunksOf(data));
    auto before = reader.next()->type;
    Colours colours;
    bool isInOrder = true;
    for (;;) {
        const auto chunk = reader.next();
        if (!chunk || (chunk->isCritical() && !chunk->isIntact))
            return {};
        if (chunk->type == chunkType("IEND"))
            break;
        const bool isFirstPiece = contents->pixels.empty();
        if (chunk->type == chunkType("IDAT")) {
            isInOrder = isInOrder && (isFirstPiece || before == chunk->type);
            contents->pixels.push_back(chunk->data);
        } else {
            // What describes colours belongs before the pixels.
            isInOrder = isInOrder && (isFirstPiece || chunk->type != chunkType("sRGB"));
            colours.look(*chunk);
        }
        before = chunk->type;
    }
    if (contents->pixels.empty())
        return {};
    if (!isInOrder || !colours.arePlain())
        contents->way = Way::qt;
    return *contents;
}

} // namespace tavrik::png
