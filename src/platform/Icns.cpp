#include "platform/Icns.h"

#include "platform/Png.h"
#include "platform/SystemPicture.h"

#include <QPainter>

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

namespace tavrik::icns {

namespace {

constexpr int kLargestSide = 1024;     ///< pixels
constexpr std::size_t kHeaderSize = 8; ///< of the container and of each element

constexpr std::uint32_t code(const char (&text)[5]) {
    std::uint32_t value = 0;
    for (int i = 0; i < 4; ++i)
        value = value << 8 | static_cast<std::uint8_t>(text[i]);
    return value;
}

std::uint32_t bigEndian(ByteView bytes) {
    return std::uint32_t{bytes[0]} << 24 | std::uint32_t{bytes[1]} << 16 | std::uint32_t{bytes[2]} << 8 |
           bytes[3];
}

void appendBigEndian(Bytes& bytes, std::uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.push_back(static_cast<std::uint8_t>(value >> shift));
}

struct ElementType {
    std::uint32_t type;
    int side;
    int scale = 1;
    bool holdsPackedRGB = false;
    std::uint32_t mask = 0;
};

/// Every type with a picture, but for the classic ones of 1, 4 and 8 bits a pixel: no application that runs
/// today has nothing better.
constexpr ElementType kTypes[] = {
    {code("is32"), 16, 1, true, code("s8mk")},
    {code("il32"), 32, 1, true, code("l8mk")},
    {code("ih32"), 48, 1, true, code("h8mk")},
    {code("it32"), 128, 1, true, code("t8mk")},
    {code("icp4"), 16, 1, true},
    {code("icp5"), 32, 1, true},
    {code("icp6"), 64},
    {code("ic04"), 16},
    {code("ic05"), 32},
    {code("ic07"), 128},
    {code("ic08"), 256},
    {code("ic09"), 512},
    {code("ic10"), 1024, 2},
    {code("ic11"), 32, 2},
    {code("ic12"), 64, 2},
    {code("ic13"), 256, 2},
    {code("ic14"), 512, 2},
    {code("icsb"), 18},
    {code("icsB"), 36, 2},
    {code("sb24"), 24},
    {code("SB24"), 48, 2},
};

const ElementType* typeOf(std::uint32_t type) {
    const auto* found = std::ranges::find(kTypes, type, &ElementType::type);
    return found == std::end(kTypes) ? nullptr : found;
}

struct Element {
    std::uint32_t type = 0;
    ByteView data;
};

/// None at all when one length is wrong.
std::vector<Element> elementsOf(ByteView container) {
    std::vector<Element> elements;
    if (container.size() < kHeaderSize || bigEndian(container) != code("icns"))
        return {};
    const std::uint32_t total = bigEndian(container.subspan(4));
    if (total < kHeaderSize || total > container.size())
        return {};
    for (ByteView rest = container.subspan(kHeaderSize, total - kHeaderSize); !rest.empty();) {
        if (rest.size() < kHeaderSize)
            return {};
        const std::uint32_t length = bigEndian(rest.subspan(4));
        if (length < kHeaderSize || length > rest.size())
            return {};
        elements.push_back({bigEndian(rest), rest.subspan(kHeaderSize, length - kHeaderSize)});
        rest = rest.subspan(length);
    }
    return elements;
}

std::optional<ByteView> find(const std::vector<Element>& elements, std::uint32_t type) {
    const auto found = std::ranges::find(elements, type, &Element::type);
    return found == elements.end() ? std::nullopt : std::optional(found->data);
}

bool isPNG(ByteView data) {
    return textOf(data).starts_with("\x89PNG\r\n\x1A\n");
}

bool isJPEG2000(ByteView data) {
    return textOf(data).starts_with(std::string_view("\0\0\0\x0CjP  ", 8)) ||
           textOf(data).starts_with("\xFF\x4F\xFF\x51");
}

/// The size in a PNG's header, when it is one that would be decoded.
std::optional<QSize> sizeOfPNG(ByteView data) {
    const auto extent = png::extent(data);
    if (!extent || std::max(extent->size.width(), extent->size.height()) > kLargestSide)
        return std::nullopt;
    return extent->size;
}

QImage decodePNG(ByteView data) {
    if (!sizeOfPNG(data))
        return {};
    return png::decode(data);
}

QImage decodeJPEG2000(ByteView data) {
    const auto size = sizeOfSystemPicture(data);
    return size && std::max(size->width(), size->height()) <= kLargestSide ? decodedBySystem(data) : QImage();
}

/// Unpacks one channel into every fourth byte, and takes what it read off the data. False when the data ends
/// first or a run crosses the channel's end.
bool unpackChannel(ByteView& packed, QImage& image, int shift) {
    const int side = image.width();
    const int pixels = side * image.height();
    auto* target = reinterpret_cast<QRgb*>(image.bits()); // 32 bits a pixel: lines follow each other closely
    for (int i = 0; i < pixels;) {
        if (packed.size() < 2)
            return false;
        const bool isRun = packed[0] >= 0x80;
        const int count = isRun ? packed[0] - 125 : packed[0] + 1;
        const std::size_t used = isRun ? 1 : static_cast<std::size_t>(count);
        if (count > pixels - i || packed.size() < 1 + used)
            return false;
        for (int k = 0; k < count; ++k, ++i)
            target[i] |= QRgb{packed[isRun ? 1 : 1 + static_cast<std::size_t>(k)]} << shift;
        packed = packed.subspan(1 + used);
    }
    return true;
}

QImage unpack(ByteView packed, int side, bool hasAlpha) {
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(hasAlpha ? 0 : 0xFF000000);
    for (int shift = hasAlpha ? 24 : 16; shift >= 0; shift -= 8) {
        if (!unpackChannel(packed, image, shift))
            return {};
    }
    return image;
}

QImage masked(QImage image, ByteView mask) {
    const auto pixels = static_cast<std::size_t>(image.width()) * static_cast<std::size_t>(image.height());
    if (image.isNull() || mask.size() != pixels)
        return {};
    auto* target = reinterpret_cast<QRgb*>(image.bits());
    for (std::size_t i = 0; i < pixels; ++i)
        target[i] = (target[i] & 0x00FFFFFF) | QRgb{mask[i]} << 24;
    return image;
}

/// The picture fitted into a square, in the middle.
QImage onSquare(const QImage& picture, int side) {
    QImage plain = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    plain.setDevicePixelRatio(1);
    const QImage scaled = plain.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QImage square(side, side, QImage::Format_ARGB32_Premultiplied);
    square.fill(Qt::transparent);
    QPainter painter(&square);
    painter.drawImage((side - scaled.width()) / 2, (side - scaled.height()) / 2, scaled);
    return square;
}

} // namespace

std::vector<Representation> representations(ByteView container) {
    std::vector<Representation> all;
    for (const Element& element : elementsOf(container)) {
        const ElementType* type = typeOf(element.type);
        if (!type)
            continue;
        const QSize size = sizeOfPNG(element.data).value_or(QSize(type->side, type->side));
        all.push_back({size.width(), size.height(), type->scale, element.type});
    }
    return all;
}

QImage decode(ByteView container, const Representation& representation) {
    const std::vector<Element> elements = elementsOf(container);
    const ElementType* type = typeOf(representation.type);
    const std::optional<ByteView> found = find(elements, representation.type);
    if (!type || !found)
        return {};
    if (isJPEG2000(*found))
        return decodeJPEG2000(*found);
    if (isPNG(*found))
        return decodePNG(*found);
    constexpr std::string_view argb = "ARGB";
    if (textOf(*found).starts_with(argb))
        return unpack(found->subspan(argb.size()), type->side, true);
    if (!type->holdsPackedRGB)
        return {};
    constexpr std::size_t zeros = 4; // in front of it32's channels
    const std::size_t skipped = type->type == code("it32") ? std::min(zeros, found->size()) : 0;
    const QImage opaque = unpack(found->subspan(skipped), type->side, false);
    const std::optional<ByteView> mask = type->mask ? find(elements, type->mask) : std::nullopt;
    return mask ? masked(opaque, *mask) : opaque;
}

QImage largestImage(ByteView container) {
    std::vector<Representation> left = representations(container);
    while (!left.empty()) {
        const auto widest = std::ranges::max_element(left, {}, &Representation::width); // the first of equals
        if (QImage image = decode(container, *widest); !image.isNull())
            return image;
        left.erase(widest);
    }
    return {};
}

Bytes encode(const QImage& picture) {
    if (picture.isNull())
        return {};
    constexpr std::uint32_t types[] = {code("icp4"), code("icp5"), code("ic12"), code("ic07"),
                                       code("ic08"), code("ic09"), code("ic10")};
    constexpr int smallestSide = 16;
    const int wanted = std::min(std::max(picture.width(), picture.height()), kLargestSide);
    std::size_t count = 1;
    while (smallestSide << (count - 1) < wanted)
        ++count;

    // Each size is half of the one above it: exact averages of four pixels, and much less work than from the
    // original each time.
    std::vector<Bytes> pictures(count);
    QImage image = onSquare(picture, smallestSide << (count - 1));
    for (std::size_t i = count; i-- > 0;) {
        auto coded = png::encode(image);
        if (!coded)
            return {};
        pictures[i] = std::move(*coded);
        image = image.scaled(image.width() / 2, image.height() / 2, Qt::IgnoreAspectRatio,
                             Qt::SmoothTransformation);
    }

    std::size_t total = kHeaderSize;
    for (const Bytes& each : pictures)
        total += kHeaderSize + each.size();
    Bytes container;
    container.reserve(total);
    appendBigEndian(container, code("icns"));
    appendBigEndian(container, static_cast<std::uint32_t>(total));
    for (std::size_t i = 0; i < count; ++i) {
        appendBigEndian(container, types[i]);
        appendBigEndian(container, static_cast<std::uint32_t>(kHeaderSize + pictures[i].size()));
        container.insert(container.end(), pictures[i].begin(), pictures[i].end());
    }
    return container;
}

} // namespace tavrik::icns
