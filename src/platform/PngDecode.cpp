#include "platform/Png.h"
#include "platform/PngContents.h"
#include "platform/PngFilter.h"
#include "platform/StandardPicture.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>

#include <libdeflate.h>

#include <algorithm>
#include <memory>
#include <new>
#include <utility>

namespace tavrik::png {

namespace {

/// The pieces as one; joined in `storage` when there are several.
ByteView joined(const std::vector<ByteView>& pieces, Bytes& storage) {
    if (pieces.size() == 1)
        return pieces.front();
    std::size_t total = 0;
    for (const ByteView piece : pieces)
        total += piece.size();
    storage.reserve(total);
    for (const ByteView piece : pieces)
        storage.insert(storage.end(), piece.begin(), piece.end());
    return storage;
}

bool isWithinAllocationLimit(std::uint64_t bytes) {
    const int limit = QImageReader::allocationLimit(); // MB
    return limit <= 0 || bytes <= std::uint64_t(limit) << 20;
}

bool inflate(ByteView compressed, std::span<std::uint8_t> target) {
    const std::unique_ptr<libdeflate_decompressor, decltype(&libdeflate_free_decompressor)> decompressor(
        libdeflate_alloc_decompressor(), &libdeflate_free_decompressor);
    return decompressor &&
           libdeflate_zlib_decompress(decompressor.get(), compressed.data(), compressed.size(), target.data(),
                                      target.size(), nullptr) == LIBDEFLATE_SUCCESS;
}

/// A pixel of one to four bytes, premultiplied: grey, grey and alpha, colours, or colours and alpha.
template<std::size_t PixelBytes>
QRgb packed(const std::uint8_t* pixel) {
    if constexpr (PixelBytes == 1)
        return qRgb(pixel[0], pixel[0], pixel[0]);
    else if constexpr (PixelBytes == 2)
        return qPremultiply(qRgba(pixel[0], pixel[0], pixel[0], pixel[1]));
    else if constexpr (PixelBytes == 3)
        return qRgb(pixel[0], pixel[1], pixel[2]);
    else
        return qPremultiply(qRgba(pixel[0], pixel[1], pixel[2], pixel[3]));
}

template<std::size_t PixelBytes>
void packPixels(const std::uint8_t* row, std::span<QRgb> target) {
    for (std::size_t x = 0; x < target.size(); ++x)
        target[x] = packed<PixelBytes>(row + x * PixelBytes);
}

void pack(const std::uint8_t* row, std::size_t pixelBytes, std::span<QRgb> target) {
    switch (pixelBytes) {
    case 1:
        return packPixels<1>(row, target);
    case 2:
        return packPixels<2>(row, target);
    case 3:
        return packPixels<3>(row, target);
    default:
        return packPixels<4>(row, target);
    }
}

/// A picture over memory that it then owns.
QImage pictureOver(std::unique_ptr<std::uint8_t[]> memory, QSize size) {
    const auto release = [](void* pixels) { delete[] static_cast<std::uint8_t*>(pixels); };
    QImage picture(memory.get(), size.width(), size.height(), size.width() * qsizetype{sizeof(QRgb)},
                   QImage::Format_ARGB32_Premultiplied, release, memory.get());
    if (!picture.isNull())
        static_cast<void>(memory.release());
    return picture;
}

/// The rows unfold at the end of the picture's own memory and move forward, one after another, to where they
/// belong: a picture of 4096 pixels a side takes 64 MB instead of 128. None of them overtakes the next, since
/// what is left of the rows is never longer than what is left of the picture and a byte for each row.
QImage decodeQuickly(const Contents& contents) {
    // At most 2^31 - 1 pixels a side, so that no product is too large for sixty-four bits.
    const std::uint64_t rowBytes = std::uint64_t{contents.width} * contents.pixelBytes;
    const std::uint64_t rawBytes = contents.height * (1 + rowBytes);
    const std::uint64_t imageBytes = std::uint64_t{contents.height} * contents.width * sizeof(QRgb);
    const std::uint64_t memoryBytes = imageBytes + contents.height;
    constexpr std::uint64_t mostInflation = 1032; // what deflate makes of a byte at most
    Bytes storage;
    const ByteView compressed = joined(contents.pixels, storage);
    if (!isWithinAllocationLimit(imageBytes) || rawBytes / mostInflation > compressed.size())
        return {};
    std::unique_ptr<std::uint8_t[]> memory(new (std::nothrow) std::uint8_t[memoryBytes]);
    if (!memory)
        return {};
    std::uint8_t* source = memory.get() + (memoryBytes - rawBytes);
    if (!inflate(compressed, {source, rawBytes}))
        return {};

    auto* target = reinterpret_cast<QRgb*>(memory.get());
    Bytes row(rowBytes);
    Bytes above(rowBytes);
    for (std::uint32_t y = 0; y < contents.height; ++y) {
        std::copy_n(source + 1, rowBytes, row.data());
        if (!unfilter(*source, row, above.data(), contents.pixelBytes))
            return {};
        pack(row.data(), contents.pixelBytes, {target, contents.width});
        source += 1 + rowBytes;
        target += contents.width;
        std::swap(row, above);
    }
    QImage picture =
        pictureOver(std::move(memory), {static_cast<int>(contents.width), static_cast<int>(contents.height)});
    picture.setColorSpace(QColorSpace::SRgb);
    return picture;
}

QImage decodeByQt(ByteView data) {
    QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(data.data()),
                                               static_cast<qsizetype>(data.size()));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "png");
    reader.setAutoDetectImageFormat(false);
    const QImage picture = reader.read();
    return picture.isNull() ? picture : standardised(picture);
}

} // namespace

std::optional<Extent> extent(ByteView data) {
    const auto header = readHeader(data);
    if (!header)
        return std::nullopt;
    return Extent{{static_cast<int>(header->width), static_cast<int>(header->height)},
                  header->depth == 16 ? 64 : 32};
}

QImage decode(ByteView data) {
    const Contents contents = survey(data);
    switch (contents.way) {
    case Way::none:
        return {};
    case Way::quick:
        return decodeQuickly(contents);
    case Way::qt:
        return decodeByQt(data);
    }
    return {};
}

} // namespace tavrik::png
