#include "platform/Icns.h"

#include <QBuffer>
#include <QColor>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tavrik::icns {

namespace {

std::string bigEndian(std::size_t value) {
    std::string text;
    for (int shift = 24; shift >= 0; shift -= 8)
        text += static_cast<char>(value >> shift);
    return text;
}

std::string element(const std::string& type, const std::string& data) {
    return type + bigEndian(data.size() + 8) + data;
}

Bytes container(const std::string& elements) {
    const std::string whole = element("icns", elements);
    return Bytes(whole.begin(), whole.end());
}

std::uint32_t code(const std::string& type) {
    std::uint32_t value = 0;
    for (const char letter : type)
        value = value << 8 | static_cast<std::uint8_t>(letter);
    return value;
}

QImage decodeOnly(const std::string& type, const std::string& elements) {
    return decode(container(elements), {.type = code(type)});
}

/// One channel with the same value everywhere, in the longest runs there are.
std::string channel(std::size_t pixels, char value) {
    std::string packed;
    for (; pixels > 130; pixels -= 130)
        packed.append({'\xFF', value});
    return packed + static_cast<char>(pixels + 125) + value;
}

std::string channels(std::size_t side, const std::string& values) {
    std::string packed;
    for (const char value : values)
        packed += channel(side * side, value);
    return packed;
}

std::string png(int width, int height, const QColor& colour) {
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(colour);
    QByteArray data;
    QBuffer buffer(&data);
    image.save(&buffer, "png");
    return data.toStdString();
}

} // namespace

TEST(Icns, UnpacksEveryKindOfChannels) {
    const std::tuple<std::string, std::string, int, QRgb> cases[] = {
        {"is32", element("is32", channels(16, "\x10\x20\x30")), 16, 0xFF102030},
        {"is32", element("s8mk", std::string(256, '\x80')) + element("is32", channels(16, "abc")), 16,
         0x80616263},
        {"il32", element("il32", channels(32, "abc")) + element("l8mk", std::string(1024, '@')), 32,
         0x40616263},
        {"ih32", element("ih32", channels(48, "\xFF\x80\x7F")), 48, 0xFFFF807F},
        {"it32", element("it32", std::string(4, '\0') + channels(128, "abc")), 128, 0xFF616263},
        {"icp4", element("icp4", channels(16, "abc")), 16, 0xFF616263},
        {"ic04", element("ic04", "ARGB" + channels(16, "@abc")), 16, 0x40616263},
        {"icsb", element("icsb", "ARGB" + channels(18, "@abc")), 18, 0x40616263},
    };
    for (const auto& [type, elements, side, colour] : cases) {
        const QImage image = decodeOnly(type, elements);
        ASSERT_EQ(image.size(), QSize(side, side)) << type;
        EXPECT_EQ(image.pixel(0, 0), colour) << type;
        EXPECT_EQ(image.pixel(side - 1, side - 1), colour) << type;
    }
}

TEST(Icns, UnpacksLiteralsBetweenRuns) {
    const std::string mixed = std::string("\x01\x0A\x0B") + "\x80\x0C" + channel(256 - 5, '\x0D');
    const QImage image = decodeOnly("icp4", element("icp4", mixed + channels(16, "ab")));
    ASSERT_FALSE(image.isNull());
    const QRgb expected[] = {0xFF0A6162, 0xFF0B6162, 0xFF0C6162, 0xFF0C6162, 0xFF0C6162, 0xFF0D6162};
    for (int x = 0; x < 6; ++x)
        EXPECT_EQ(image.pixel(x, 0), expected[x]) << x;
}

TEST(Icns, DecodesNothingFromDamagedElements) {
    const std::string whole = channels(16, "abc");
    const std::string picture = png(128, 128, Qt::red);
    const std::string cases[][2] = {
        {"is32", element("is32", "")},
        {"is32", element("is32", whole.substr(0, whole.size() - 2))},
        {"is32", element("is32", std::string("\xFF") + channels(16, "abc"))},
        {"is32", element("is32", "\xFF" + channel(256, 'a'))}, // the run goes past the channel
        {"is32", element("is32", whole) + element("s8mk", std::string(255, 'm'))},
        {"ic04", element("ic04", whole)},
        {"ic04", element("ic04", "ARGB" + whole)},
        {"ic07", element("ic07", picture.substr(0, picture.size() / 2))},
        {"ic07", element("ic07", std::string("\0\0\0\x0CjP  \r\n\x87\n", 12) + picture)}, // JPEG 2000
        {"icp4", element("icp4", "\xFF\x4F\xFF\x51" + whole)},                            // JPEG 2000
        {"ic10", element("ic10", png(1025, 8, Qt::red))},
    };
    for (const auto& [type, elements] : cases)
        EXPECT_TRUE(decodeOnly(type, elements).isNull()) << type << elements.size();
}

TEST(Icns, OffersNothingOnceALengthIsWrong) {
    const Bytes whole = container(element("TOC ", "12345678") + element("ic07", png(128, 128, Qt::red)) +
                                  element("icp4", channels(16, "abc")));
    EXPECT_EQ(representations(whole).size(), 2u);
    for (std::size_t size = 0; size < whole.size(); ++size)
        EXPECT_TRUE(representations(ByteView(whole).first(size)).empty()) << size;
    for (const std::size_t length : {4u, 12u, 28u}) { // of the whole, of the first element, of the second
        Bytes damaged = whole;
        damaged[length] = 0xFF;
        EXPECT_TRUE(representations(damaged).empty());
        EXPECT_TRUE(largestImage(damaged).isNull());
    }
    EXPECT_TRUE(representations(container(std::string("ic07\0\0\0\7", 8))).empty());
}

TEST(Icns, TakesTheWidestPictureThatDecodes) {
    const Bytes icon =
        container(element("ic10", "no picture") + element("ic13", png(256, 256, Qt::red)) +
                  element("ic08", png(256, 256, Qt::green)) + element("ic09", png(200, 100, Qt::blue)));
    EXPECT_THAT(representations(icon), testing::Contains(Representation{200, 100, 1, code("ic09")}));
    const QImage image = largestImage(icon);
    EXPECT_EQ(image.width(), 256);
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::red));
}

TEST(Icns, EncodesEverySizeUpToThePictures) {
    const std::pair<QSize, std::vector<int>> cases[] = {
        {{1, 1}, {16}},
        {{17, 3}, {16, 32}},
        {{64, 64}, {16, 32, 64}},
        {{1500, 2000}, {16, 32, 64, 128, 256, 512, 1024}},
    };
    for (const auto& [size, widths] : cases) {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Qt::red);
        const Bytes icon = encode(picture);
        std::vector<int> encoded;
        for (const Representation& representation : representations(icon)) {
            EXPECT_EQ(decode(icon, representation).size(), QSize(representation.width, representation.width));
            encoded.push_back(representation.width);
        }
        EXPECT_EQ(encoded, widths) << size.width();
    }
    EXPECT_TRUE(encode(QImage()).empty());
}

TEST(Icns, ScalesWithoutMixingInTheColourOfTransparentPixels) {
    QImage picture(32, 32, QImage::Format_ARGB32);
    for (int at = 0; at < 32 * 32; ++at)
        picture.setPixel(at % 32, at / 32, at % 2 == 0 ? 0xFFFF0000 : 0x0000FF00);
    const Bytes icon = encode(picture);
    const QColor small = decode(icon, representations(icon).front()).pixelColor(8, 8);
    EXPECT_EQ(small.rgb(), qRgb(255, 0, 0));
    EXPECT_NEAR(small.alpha(), 128, 1);
}

TEST(Icns, FitsAPictureIntoTheMiddleOfItsSquare) {
    QImage picture(64, 32, QImage::Format_RGB32);
    picture.fill(Qt::red);
    picture.setDevicePixelRatio(2);
    const QImage square = largestImage(encode(picture));
    ASSERT_EQ(square.size(), QSize(64, 64));
    EXPECT_EQ(square.pixelColor(32, 15).alpha(), 0);
    EXPECT_EQ(square.pixelColor(63, 47), QColor(Qt::red));
    EXPECT_EQ(square.pixelColor(32, 48).alpha(), 0);
}

} // namespace tavrik::icns
