#include "platform/Png.h"
#include "platform/PngChunks.h"
#include "platform/PngFilter.h"
#include "platform/StandardPicture.h"

#include <libdeflate.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <new>

namespace tavrik::png {

namespace {

/// Levels of compression. Textured pictures take two to four times as long at any other than the first, for a
/// few percent of their bytes. Flat ones, as drawn icons are, take no longer at the fourth than at the first.
constexpr int kLevelOfRough = 1;
constexpr int kLevelOfFlat = 4;
constexpr int kBand = 16; ///< rows that are brought into the form of a PNG at once, so that they stay near

/// Bytes that nobody filled with zeros first. Null when there is no memory.
std::unique_ptr<std::uint8_t[]> rawBytes(std::size_t count) {
    return std::unique_ptr<std::uint8_t[]>(new (std::nothrow) std::uint8_t[count]);
}

bool isOpaque(const QImage& picture) {
    for (int y = 0; y < picture.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        if (!std::all_of(row, row + picture.width(), [](QRgb pixel) { return qAlpha(pixel) == 255; }))
            return false;
    }
    return true;
}

struct Compressed {
    std::unique_ptr<std::uint8_t[]> bytes;
    std::size_t size = 0; ///< 0 when there was no memory

    ByteView view() const { return {bytes.get(), size}; }
};

Compressed compress(ByteView raw, int level) {
    const std::unique_ptr<libdeflate_compressor, decltype(&libdeflate_free_compressor)> compressor(
        libdeflate_alloc_compressor(level), &libdeflate_free_compressor);
    if (!compressor)
        return {};
    const std::size_t most = libdeflate_zlib_compress_bound(compressor.get(), raw.size());
    Compressed result{rawBytes(most)};
    if (result.bytes)
        result.size =
            libdeflate_zlib_compress(compressor.get(), raw.data(), raw.size(), result.bytes.get(), most);
    return result;
}

/// Some rows of a picture, as a PNG has them before they are filtered. Null when there is no memory.
QImage unpacked(const QImage& picture, int top, int count, std::size_t pixelBytes) {
    const QImage rows(picture.constScanLine(top), picture.width(), count, picture.bytesPerLine(),
                      picture.format());
    return rows.convertToFormat(pixelBytes == 4 ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
}

Compressed compressRows(const QImage& picture, std::size_t pixelBytes) {
    const std::size_t rowBytes = static_cast<std::size_t>(picture.width()) * pixelBytes;
    const std::size_t total = static_cast<std::size_t>(picture.height()) * (1 + rowBytes);
    const auto filtered = rawBytes(total);
    if (!filtered)
        return {};
    RowFilter filter(rowBytes, pixelBytes);
    std::uint8_t* target = filtered.get();
    for (int top = 0; top < picture.height(); top += kBand) {
        const QImage rows = unpacked(picture, top, std::min(kBand, picture.height() - top), pixelBytes);
        if (rows.isNull())
            return {};
        for (int y = 0; y < rows.height(); ++y, target += 1 + rowBytes)
            filter.write(rows.constScanLine(y), target);
    }
    const bool isFlat = filter.differences() < total;
    return compress({filtered.get(), total}, isFlat ? kLevelOfFlat : kLevelOfRough);
}

Bytes header(QSize size, std::size_t pixelBytes) {
    constexpr std::uint8_t rgb = 2, rgba = 6;
    Bytes data;
    appendBigEndian(data, static_cast<std::uint32_t>(size.width()));
    appendBigEndian(data, static_cast<std::uint32_t>(size.height()));
    // Bits a channel, kind of pixel, and the only compression, set of filters and plain order of rows.
    for (const std::uint8_t value :
         {std::uint8_t{8}, pixelBytes == 4 ? rgba : rgb, std::uint8_t{0}, std::uint8_t{0}, std::uint8_t{0}})
        data.push_back(value);
    return data;
}

} // namespace

Result<Bytes> encode(const QImage& picture) {
    if (picture.isNull())
        return Error{"There is no picture to code.", EINVAL};
    const Error noMemory{"There is no memory for coding the picture.", ENOMEM};
    // Naming the colour space of a picture that is as wanted would copy it.
    const bool isStandard = picture.format() == QImage::Format_ARGB32_Premultiplied && isSRGB(picture);
    const QImage standard = isStandard ? picture : standardised(picture);
    if (standard.isNull())
        return noMemory;
    const std::size_t pixelBytes = isOpaque(standard) ? 3 : 4;
    const Compressed pixels = compressRows(standard, pixelBytes);
    if (pixels.size == 0)
        return noMemory;

    constexpr std::size_t aroundPixels = 128; // more than all that is not pixels
    constexpr std::uint8_t perceptual[] = {0};
    Bytes file;
    file.reserve(pixels.size + aroundPixels);
    file.insert(file.end(), std::begin(kSignature), std::end(kSignature));
    appendChunk(file, chunkType("IHDR"), header(standard.size(), pixelBytes));
    appendChunk(file, chunkType("sRGB"), perceptual);
    for (ByteView rest = pixels.view(); !rest.empty();) {
        const ByteView part = rest.first(std::min(rest.size(), kLargestChunk));
        appendChunk(file, chunkType("IDAT"), part);
        rest = rest.subspan(part.size());
    }
    appendChunk(file, chunkType("IEND"), {});
    return file;
}

} // namespace tavrik::png
