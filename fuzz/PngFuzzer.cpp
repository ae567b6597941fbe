#include "platform/Png.h"
#include "platform/PngChunks.h"
#include "platform/StandardPicture.h"

#include <QImageReader>
#include <QLoggingCategory>

#include <libdeflate.h>

#include <algorithm>
#include <cstdlib>

using namespace tavrik;

namespace {

/// The same chunks with checksums that are right, so that what lies behind them is reached.
Bytes mended(ByteView data) {
    Bytes file(data.begin(), data.end());
    for (std::size_t at = std::size(png::kSignature); at + 12 <= file.size();) {
        const ByteView rest = ByteView(file).subspan(at);
        const std::size_t length = png::bigEndian(rest);
        if (length > rest.size() - 12)
            break;
        Bytes chunk;
        png::appendChunk(chunk, png::bigEndian(rest.subspan(4)), rest.subspan(8, length));
        std::ranges::copy(chunk, file.begin() + static_cast<std::ptrdiff_t>(at));
        at += chunk.size();
    }
    return file;
}

/// The input as the rows of a picture of a plain kind: its width, its kind, then what is to be unfiltered.
Bytes wrapped(ByteView data) {
    constexpr std::pair<std::uint8_t, std::size_t> kinds[] = {{0, 1}, {4, 2}, {2, 3}, {6, 4}};
    const std::size_t width = 1 + data[0] % 40;
    const auto [colourType, pixelBytes] = kinds[data[1] % 4];
    const ByteView rows = data.subspan(2);
    Bytes file(std::begin(png::kSignature), std::end(png::kSignature));
    Bytes header;
    png::appendBigEndian(header, static_cast<std::uint32_t>(width));
    png::appendBigEndian(header, static_cast<std::uint32_t>(rows.size() / (1 + width * pixelBytes)));
    for (const std::uint8_t value :
         {std::uint8_t{8}, colourType, std::uint8_t{0}, std::uint8_t{0}, std::uint8_t{0}})
        header.push_back(value);
    png::appendChunk(file, png::chunkType("IHDR"), header);
    libdeflate_compressor* compressor = libdeflate_alloc_compressor(1);
    Bytes pixels(libdeflate_zlib_compress_bound(compressor, rows.size()));
    pixels.resize(libdeflate_zlib_compress(compressor, rows.data(), rows.size(), pixels.data(), pixels.size()));
    libdeflate_free_compressor(compressor);
    png::appendChunk(file, png::chunkType("IDAT"), pixels);
    png::appendChunk(file, png::chunkType("IEND"), {});
    return file;
}

/// What both read is the same, and what was read can be written and comes back.
void check(const Bytes& file) {
    const QImage ours = png::decode(file);
    if (ours.isNull())
        return;
    const QImage theirs = QImage::fromData(file.data(), static_cast<int>(file.size()), "png");
    if (!theirs.isNull() && standardised(theirs) != ours)
        std::abort();
    const auto coded = png::encode(ours);
    if (!coded || png::decode(*coded) != ours)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    QImageReader::setAllocationLimit(1);
    QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio=false"));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Bytes file(data, data + size);
    check(file);
    check(mended(file));
    if (size > 2)
        check(wrapped(file));
    return 0;
}
