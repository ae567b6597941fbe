#include "platform/Png.h"

#include "platform/PngChunks.h"
#include "platform/StandardPicture.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace tavrik::png {
namespace {

std::mt19937 dice(11); // the same throws in each run

std::uint8_t throwDice(int sides = 256) {
    return static_cast<std::uint8_t>(dice() % static_cast<unsigned>(sides));
}

Bytes deflated(const Bytes& raw) {
    const QByteArray data = qCompress(raw.data(), static_cast<qsizetype>(raw.size())).mid(4);
    return Bytes(data.begin(), data.end());
}

/// Rows of chance, each with a filter of chance; residues may be anything.
Bytes anyRows(int height, std::size_t rowBytes) {
    Bytes raw;
    for (int y = 0; y < height; ++y) {
        raw.push_back(throwDice(5));
        for (std::size_t i = 0; i < rowBytes; ++i)
            raw.push_back(throwDice(4) == 0 ? throwDice() : throwDice(3)); // both flat and wild
    }
    return raw;
}

struct Sample {
    std::uint32_t width = 1;
    std::uint32_t height = 1;
    std::uint8_t depth = 8;
    std::uint8_t colourType = 6;
    bool isInterlaced = false;
    std::vector<std::pair<std::uint32_t, std::string>> others = {}; ///< chunks before the pixels
};

Bytes file(const Sample& sample, const Bytes& raw) {
    Bytes data(std::begin(kSignature), std::end(kSignature));
    Bytes header;
    appendBigEndian(header, sample.width);
    appendBigEndian(header, sample.height);
    for (const int value : {int{sample.depth}, int{sample.colourType}, 0, 0, int{sample.isInterlaced}})
        header.push_back(static_cast<std::uint8_t>(value));
    appendChunk(data, chunkType("IHDR"), header);
    for (const auto& [type, content] : sample.others)
        appendChunk(data, type, bytesOf(content));
    const Bytes pixels = deflated(raw);
    const std::size_t half = pixels.size() / 2;
    appendChunk(data, chunkType("IDAT"), ByteView(pixels).first(half));
    appendChunk(data, chunkType("IDAT"), ByteView(pixels).subspan(half));
    appendChunk(data, chunkType("IEND"), {});
    return data;
}

QImage byQt(const Bytes& data) {
    const QImage picture = QImage::fromData(data.data(), static_cast<int>(data.size()), "png");
    return picture.isNull() ? picture : standardised(picture);
}

Bytes writtenByQt(const QImage& picture) {
    QByteArray data;
    QBuffer buffer(&data);
    EXPECT_TRUE(buffer.open(QIODevice::WriteOnly) && picture.save(&buffer, "png"));
    return Bytes(data.begin(), data.end());
}

QImage anyPicture(int width, int height, int leastAlpha) {
    QImage picture(width, height, QImage::Format_ARGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            picture.setPixel(
                x, y, qRgba(throwDice(), throwDice(9), x * y % 256, std::max<int>(throwDice(), leastAlpha)));
    }
    return picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

constexpr std::pair<int, std::size_t> kPixelBytes[] = {{0, 1}, {4, 2}, {2, 3}, {6, 4}}; // by colour type

TEST(Png, ReadsEveryPixelAsQtDoes) {
    using namespace std::string_literals;
    const decltype(Sample::others) aside = {{chunkType("sBIT"), "\5\5\5\5"},
                                            {chunkType("bKGD"), "\0\1\0\2\0\3"s},
                                            {chunkType("pHYs"), "\0\0\1\0\0\0\1\0\1"s},
                                            {chunkType("tEXt"), "Title\0A"s},
                                            {chunkType("sRGB"), "\0"s},
                                            {chunkType("gAMA"), "\0\0\x5F\0"s},
                                            {chunkType("abCd"), "?"}};
    for (const auto& [colourType, pixelBytes] : kPixelBytes) {
        for (int turn = 0; turn < 60; ++turn) {
            Sample sample{.width = 1u + throwDice(40),
                          .height = 1u + throwDice(30),
                          .colourType = static_cast<std::uint8_t>(colourType)};
            std::ranges::sample(aside, std::back_inserter(sample.others), throwDice(4), dice);
            std::erase_if(sample.others,
                          [&](const auto& each) { return each.first == chunkType("sBIT") && pixelBytes != 4; });
            const Bytes data =
                file(sample, anyRows(static_cast<int>(sample.height), sample.width * pixelBytes));
            ASSERT_FALSE(byQt(data).isNull()) << colourType;
            ASSERT_EQ(decode(data), byQt(data)) << colourType << " " << sample.width << " x " << sample.height;
        }
    }
}

TEST(Png, ReadsWithQtWhatItDoesNotKnowItself) {
    using namespace std::string_literals;
    const std::string primaries(
        "\0\0\x7A\x26\0\0\x80\x84\0\0\xFA\0\0\0\x80\xE8\0\0\x75\x30\0\0\xEA\x60\0\0\x3A\x98\0\0\x17\x70", 32);
    QImage wide = anyPicture(11, 7, 0);
    wide.setColorSpace(QColorSpace::DisplayP3);
    const std::map<std::string, Bytes> files = {
        {"gamma", file({.width = 5, .others = {{chunkType("gAMA"), "\0\0\x5F\0"s}}}, anyRows(1, 20))},
        {"primaries",
         file({.width = 5, .others = {{chunkType("gAMA"), "\0\0\xB1\x8F"s}, {chunkType("cHRM"), primaries}}},
              anyRows(1, 20))},
        {"transparent colour",
         file({.width = 9, .colourType = 2, .others = {{chunkType("tRNS"), "\0\0\0\0\0\0"s}}}, Bytes(28))},
        {"sixteen bits", file({.width = 3, .depth = 16}, anyRows(1, 24))},
        {"interlaced", file({.width = 2, .isInterlaced = true}, {0, 1, 2, 3, 255, 0, 4, 5, 6, 255})},
        {"one bit", writtenByQt(anyPicture(11, 7, 255).convertToFormat(QImage::Format_Mono))},
        {"palette", writtenByQt(anyPicture(11, 7, 0).convertToFormat(QImage::Format_Indexed8))},
        {"profile", writtenByQt(wide)}};
    for (const auto& [kind, data] : files) {
        ASSERT_FALSE(byQt(data).isNull()) << kind;
        EXPECT_EQ(decode(data), byQt(data)) << kind;
    }
}

TEST(Png, ComesBackAsItWasWhoeverReadsIt) {
    const QImage any = anyPicture(37, 41, 0);
    QImage wide = any;
    wide.setColorSpace(QColorSpace::DisplayP3);
    QImage smooth(300, 200, QImage::Format_RGB32);
    smooth.fill(QColor(1, 2, 3));
    for (const QImage& picture :
         {any, wide, smooth, anyPicture(1, 1, 0), anyPicture(64, 33, 255), anyPicture(1, 300, 200),
          any.convertToFormat(QImage::Format_ARGB32), any.convertToFormat(QImage::Format_RGBA64),
          any.convertToFormat(QImage::Format_Grayscale8)}) {
        const auto data = encode(picture);
        ASSERT_TRUE(data);
        EXPECT_EQ(decode(*data), standardised(picture)) << picture.format();
        EXPECT_EQ(byQt(*data), standardised(picture)) << picture.format();
    }
    EXPECT_FALSE(encode(QImage()));
}

TEST(Png, SpendsNoAlphaOnOpaquePicturesAndTheSameBytesOnTheSamePixels) {
    const auto colourType = [](const Bytes& data) { return int{data[25]}; };
    for (const auto& [leastAlpha, expected] : {std::pair(255, 2), std::pair(0, 6)}) {
        const QImage picture = anyPicture(23, 40, leastAlpha);
        const Bytes data = *encode(picture);
        EXPECT_EQ(colourType(data), expected);
        QImage larger(50, 50, QImage::Format_ARGB32_Premultiplied);
        for (int y = 0; y < picture.height(); ++y)
            std::copy_n(picture.constScanLine(y), picture.bytesPerLine(), larger.scanLine(y + 3) + 4 * 5);
        EXPECT_EQ(*encode(larger.copy(5, 3, 23, 40)), data);
        EXPECT_EQ(*encode(standardised(picture)), data);
        EXPECT_EQ(*encode(decode(data)), data);
    }
}

TEST(Png, ShowsADamagedPictureWholeOrNotAtAll) {
    const Sample sample{.width = 6, .height = 5, .others = {{chunkType("sRGB"), std::string(1, 0)}}};
    for (const Bytes& data : {file(sample, anyRows(5, 24)), *encode(anyPicture(7, 5, 0)),
                              writtenByQt(anyPicture(7, 5, 255).convertToFormat(QImage::Format_Indexed8))}) {
        const QImage whole = decode(data);
        ASSERT_FALSE(whole.isNull());
        for (std::size_t length = 0; length < data.size(); ++length)
            EXPECT_TRUE(decode(ByteView(data).first(length)).isNull()) << length;
        for (std::size_t at = 0; at < data.size(); ++at) {
            for (int bit = 1; bit < 256; bit *= 2) {
                Bytes damaged = data;
                damaged[at] ^= static_cast<std::uint8_t>(bit);
                const QImage picture = decode(damaged);
                EXPECT_TRUE(picture.isNull() || picture == whole) << at;
            }
        }
    }
}

TEST(Png, RefusesRowsThatAreNotWhatTheHeaderSays) {
    for (const auto& [colourType, pixelBytes] : kPixelBytes) {
        const Sample sample{.width = 5, .height = 3, .colourType = static_cast<std::uint8_t>(colourType)};
        const Bytes rows = anyRows(3, 5 * pixelBytes);
        Bytes longer = rows, shorter = rows, unknownFilter = rows;
        longer.push_back(0);
        shorter.pop_back();
        unknownFilter[1 + 5 * pixelBytes] = 5;
        EXPECT_FALSE(decode(file(sample, rows)).isNull());
        for (const Bytes& wrong : {longer, shorter, unknownFilter, Bytes()})
            EXPECT_TRUE(decode(file(sample, wrong)).isNull()) << colourType << " " << wrong.size();
    }
}

TEST(Png, RefusesSizesThatTheDataOrTheLimitCannotHold) {
    const int limit = QImageReader::allocationLimit();
    const Bytes wide = *encode(anyPicture(1000, 300, 255)); // 1.2 MB
    for (const int megabytes : {0, 1, 2}) {
        QImageReader::setAllocationLimit(megabytes);
        EXPECT_EQ(decode(wide).isNull(), megabytes == 1) << megabytes;
        for (const std::uint32_t side : {20'000u, 0x7FFFFFFFu, 0x80000000u, 0u})
            EXPECT_TRUE(decode(file({.width = side, .height = side}, anyRows(5, 24))).isNull()) << side;
    }
    QImageReader::setAllocationLimit(limit);
}

} // namespace
} // namespace tavrik::png
