#include "icons/PictureFormat.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>
#include <string_view>

namespace tavrik {

namespace {

using namespace std::string_view_literals;

constexpr std::size_t kSvgSearch = 64u << 10; ///< bytes before which the root of a drawing must begin

bool isSvg(std::string_view text) {
    if (text.starts_with("\xEF\xBB\xBF"))
        text.remove_prefix(3);
    const auto first = text.find_first_not_of(" \t\r\n");
    return first != std::string_view::npos && text[first] == '<' &&
           text.substr(0, kSvgSearch).find("<svg") != std::string_view::npos;
}

/// Walks over bytes; past the end it stays there and answers zero.
class Walk {
public:
    explicit Walk(ByteView data) : m_data(data) {}

    bool atEnd() const { return m_position >= m_data.size(); }

    unsigned byte() { return atEnd() ? 0 : m_data[m_position++]; }

    void skip(std::size_t count) { m_position += std::min(count, m_data.size() - m_position); }

private:
    ByteView m_data;
    std::size_t m_position = 0;
};

/// From chunk to chunk until the closing one.
bool pngEnds(ByteView data) {
    constexpr std::size_t kSignature = 8;
    constexpr std::size_t kAround = 12; // length, type and checksum of a chunk
    std::size_t position = kSignature;
    while (data.size() >= kAround && position <= data.size() - kAround) {
        const auto chunk = data.subspan(position);
        const std::size_t length = std::size_t{chunk[0]} << 24 | std::size_t{chunk[1]} << 16 |
                                   std::size_t{chunk[2]} << 8 | std::size_t{chunk[3]};
        if (textOf(chunk.subspan(4, 4)) == "IEND")
            return true;
        position += kAround + length;
    }
    return false;
}

/// From marker to marker until the end of the image; pictures within segments are stepped over with them.
bool jpegEnds(ByteView data) {
    constexpr unsigned kEndOfImage = 0xD9;
    const auto standsAlone = [](unsigned marker) {
        return marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
    };
    Walk walk(data);
    while (!walk.atEnd()) {
        if (walk.byte() != 0xFF)
            continue;
        unsigned marker = walk.byte();
        while (marker == 0xFF)
            marker = walk.byte();
        if (marker == kEndOfImage)
            return true;
        if (marker == 0 || standsAlone(marker))
            continue;
        const unsigned high = walk.byte();
        const std::size_t length = high << 8 | walk.byte();
        walk.skip(length < 2 ? 0 : length - 2);
    }
    return false;
}

/// The first frame's blocks, up to and with the empty one that closes them.
bool gifFrameEnds(ByteView data) {
    constexpr unsigned kExtension = 0x21;
    constexpr unsigned kFrame = 0x2C;
    const auto tableBytes = [](unsigned flags) -> std::size_t {
        return (flags & 0x80) != 0 ? std::size_t{3} << ((flags & 7) + 1) : 0;
    };
    const auto skipBlocks = [](Walk& walk) {
        while (!walk.atEnd()) {
            const unsigned length = walk.byte();
            if (length == 0)
                return true;
            walk.skip(length);
        }
        return false;
    };
    Walk walk(data);
    walk.skip(10);
    const unsigned screenFlags = walk.byte();
    walk.skip(2 + tableBytes(screenFlags));
    while (!walk.atEnd()) {
        const unsigned block = walk.byte();
        if (block == kFrame) {
            walk.skip(8);
            const unsigned frameFlags = walk.byte();
            walk.skip(tableBytes(frameFlags) + 1);
            return skipBlocks(walk);
        }
        if (block != kExtension)
            return false;
        walk.skip(1);
        skipBlocks(walk);
    }
    return false;
}

/// The size that the header states; zero where the writer left it out.
bool bmpEnds(ByteView data) {
    std::size_t stated = 0;
    for (std::size_t place : {5u, 4u, 3u, 2u})
        stated = stated << 8 | data[place];
    return data.size() >= stated;
}

} // namespace

QByteArray pluginFormat(ByteView data) {
    // Its beginning could be a cursor's: its end is what tells it.
    if (textOf(data).ends_with("TRUEVISION-XFILE.\0"sv))
        return "tga";
    QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(data.data()),
                                               static_cast<qsizetype>(data.size()));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    const QByteArray format = QImageReader::imageFormat(&buffer);
    return format.startsWith("svg") || format == "pdf" ? QByteArray() : format;
}

bool holdsWholePicture(ByteView data, const QByteArray& pluginFormat) {
    return pluginFormat != "xbm" || textOf(data).find('}') != std::string_view::npos;
}

std::optional<PictureFormat> pictureFormat(ByteView data) {
    const std::string_view text = textOf(data);
    if (text.starts_with("\x89PNG\r\n\x1A\n"))
        return PictureFormat::png;
    if (text.starts_with("\xFF\xD8\xFF"))
        return PictureFormat::jpeg;
    if (text.starts_with("II*\0"sv) || text.starts_with("MM\0*"sv))
        return PictureFormat::tiff;
    if (text.starts_with("RIFF") && text.substr(0, 12).ends_with("WEBP"))
        return PictureFormat::webp;
    if (text.starts_with("GIF87a") || text.starts_with("GIF89a"))
        return PictureFormat::gif;
    if (text.starts_with("BM") && text.size() >= 26)
        return PictureFormat::bmp;
    if (text.starts_with("\x1F\x8B"))
        return PictureFormat::compressedSvg;
    if (text.starts_with("icns"))
        return PictureFormat::icns;
    if (isSvg(text))
        return PictureFormat::svg;
    return std::nullopt;
}

bool holdsWholePicture(ByteView data, PictureFormat format) {
    switch (format) {
    case PictureFormat::png:
        return pngEnds(data);
    case PictureFormat::jpeg:
        return jpegEnds(data);
    case PictureFormat::gif:
        return gifFrameEnds(data);
    case PictureFormat::bmp:
        return bmpEnds(data);
    default:
        return true;
    }
}

} // namespace tavrik
