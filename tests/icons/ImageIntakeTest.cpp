#include "icons/ImageIntake.h"

#include "platform/Icns.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImage>
#include <QTransform>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <libdeflate.h>

#include <string>

namespace tavrik {
namespace {

using testing::HasSubstr;

Bytes bytes(const QByteArray& data) {
    return Bytes(data.begin(), data.end());
}

QByteArray array(const Bytes& data) {
    return QByteArray(reinterpret_cast<const char*>(data.data()), static_cast<qsizetype>(data.size()));
}

/// A picture whose four quarters differ, one of them half transparent.
QImage quarters(int width = 48, int height = 32) {
    QImage picture(width, height, QImage::Format_ARGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const bool isLeft = x < width / 2;
            const bool isTop = y < height / 2;
            picture.setPixelColor(x, y,
                                  QColor(isLeft ? 250 : 20, isTop ? 240 : 30, 60, isLeft || isTop ? 255 : 128));
        }
    }
    return picture;
}

Bytes encoded(const QImage& picture, const char* format) {
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(picture.save(&buffer, format, 100)) << format;
    return bytes(data);
}

/// Two frames of 16 by 8: red, then blue.
Bytes animation() {
    return bytes(QByteArray::fromBase64("R0lGODlhEAAIAIAAAP8AAAAA/yH5BAAKAAAALAAAAAAQAAgAAAIKhI+py+0Po5ysAAAs"
                                        "AAAAABAACAAAAgqMj6nL7Q+jnKwAADs="));
}

Bytes drawing(const std::string& attributes,
              const std::string& content = "<rect width='9' height='9' fill='red'/>") {
    const std::string text = "<?xml version='1.0'?><!-- note --><svg xmlns='http://www.w3.org/2000/svg' "
                             "xmlns:xlink='http://www.w3.org/1999/xlink' " +
                             attributes + ">" + content + "</svg>";
    return Bytes(text.begin(), text.end());
}

Bytes compressed(const Bytes& data) {
    Bytes file(data.size() + 64);
    libdeflate_compressor* compressor = libdeflate_alloc_compressor(1);
    file.resize(libdeflate_gzip_compress(compressor, data.data(), data.size(), file.data(), file.size()));
    libdeflate_free_compressor(compressor);
    return file;
}

/// A Windows icon of 16 by 16 black pixels and, behind it, of the quarters at 64 by 64.
Bytes windowsIcon() {
    QImage small(16, 16, QImage::Format_ARGB32);
    small.fill(Qt::black);
    Bytes icon{0, 0, 1, 0, 2, 0};
    Bytes content;
    for (const QImage& picture : {small, quarters(64, 64)}) {
        const Bytes png = encoded(picture, "png");
        const auto side = static_cast<std::uint8_t>(picture.width());
        const Bytes entry{side, side, 0, 0, 1, 0, 32, 0};
        icon.insert(icon.end(), entry.begin(), entry.end());
        for (const std::size_t number : {png.size(), 6 + 2 * 16 + content.size()}) {
            for (const int shift : {0, 8, 16, 24})
                icon.push_back(static_cast<std::uint8_t>(number >> shift));
        }
        content.insert(content.end(), png.begin(), png.end());
    }
    icon.insert(icon.end(), content.begin(), content.end());
    return icon;
}

/// The quarters as TGA: a header, then blue, green, red and alpha, the top row first, and the footer.
Bytes tga() {
    const QImage picture = quarters();
    Bytes file{0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 48, 0, 32, 0, 32, 0x28};
    for (int y = 0; y < picture.height(); ++y)
        file.insert(file.end(), picture.constScanLine(y), picture.constScanLine(y) + 4 * picture.width());
    const std::string footer = std::string(8, '\0') + "TRUEVISION-XFILE." + std::string(1, '\0');
    file.insert(file.end(), footer.begin(), footer.end());
    return file;
}

std::map<std::string, Bytes> samples() {
    return {{"png", encoded(quarters(), "png")},
            {"jpeg", encoded(quarters(), "jpg")},
            {"tiff", encoded(quarters(), "tiff")},
            {"webp", encoded(quarters(), "webp")},
            {"bmp", encoded(quarters(), "bmp")},
            {"gif", animation()},
            {"svg", drawing("width='30' height='20'")},
            {"icns", icns::encode(quarters(64, 64))},
            {"svgz", compressed(drawing("width='30' height='20'"))},
            {"ico", windowsIcon()},
            {"tga", tga()},
            {"ppm", encoded(quarters(), "ppm")},
            {"xpm", encoded(quarters(), "xpm")}};
}

TEST(ImageIntake, ReadsEveryKindWhateverTheFileIsCalled) {
    const std::map<std::string, QSize> sizes{
        {"gif", {16, 8}}, {"svg", {1024, 683}}, {"icns", {64, 64}}, {"svgz", {1024, 683}}, {"ico", {64, 64}}};
    for (const auto& [kind, data] : samples()) {
        const auto picture = readPicture(data, "picture.dat");
        ASSERT_TRUE(picture) << kind << picture.error().description;
        EXPECT_EQ(picture->size(), sizes.contains(kind) ? sizes.at(kind) : QSize(48, 32)) << kind;
        EXPECT_EQ(picture->colorSpace(), QColorSpace(QColorSpace::SRgb)) << kind;
        EXPECT_NEAR(picture->pixelColor(1, 1).red(), 250, 10) << kind;
    }
    EXPECT_EQ(readPicture(samples().at("png"), "")->pixelColor(40, 30).alpha(), 128);
    EXPECT_EQ(readPicture(samples().at("gif"), "")->pixelColor(15, 7), QColor(Qt::red));
}

TEST(ImageIntake, RefusesEveryCutOfEveryKind) {
    for (const auto& [kind, data] : samples()) {
        const auto whole = readPicture(data, "a");
        for (std::size_t length = 0; length < data.size(); length += 1 + data.size() / 400) {
            // What is lost may be no part of the first picture: then it must come out whole.
            const auto cut = readPicture(ByteView(data).first(length), "Atlas");
            if (cut) {
                EXPECT_EQ(*cut, *whole) << kind << " of " << length;
                EXPECT_GT(length, kind == "gif" ? data.size() / 2 : data.size() - 20) << kind;
            } else {
                EXPECT_THAT(cut.error().description, HasSubstr("“Atlas” is ")) << kind;
            }
        }
    }
}

TEST(ImageIntake, HonoursTheOrientationOfAPhoto) {
    // An Exif segment with one entry: orientation 6, to be turned a quarter to the right.
    const QByteArray exif =
        QByteArrayLiteral("\xFF\xE1\x00\x22"
                          "Exif\0\0MM\0*\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0\x06\0\0\0\0\0\0");
    const auto picture = readPicture(bytes(array(encoded(quarters(), "jpg")).insert(2, exif)), "photo.jpg");
    ASSERT_TRUE(picture);
    ASSERT_EQ(picture->size(), QSize(32, 48));
    EXPECT_NEAR(picture->pixelColor(1, 1).red(), 250, 10);
    EXPECT_NEAR(picture->pixelColor(1, 1).green(), 30, 10); // the bottom left quarter of before
}

TEST(ImageIntake, ConvertsColoursToSRGB) {
    QImage wide(8, 8, QImage::Format_RGB32);
    wide.fill(QColor(0, 200, 0));
    wide.setColorSpace(QColorSpace::DisplayP3);
    const auto picture = readPicture(encoded(wide, "png"), "wide.png");
    EXPECT_GT(picture->pixelColor(3, 3).green(), 200);
}

TEST(ImageIntake, RefusesHugePictures) {
    for (const auto& [width, height] :
         {std::pair(16'385, 1), std::pair(1, 100'000), std::pair(16'384, 16'384)}) {
        QImage picture(width, height, QImage::Format_Mono);
        picture.fill(0);
        const auto refused = readPicture(encoded(picture, "png"), "huge.png");
        ASSERT_FALSE(refused);
        EXPECT_THAT(refused.error().description,
                    HasSubstr("“huge.png” is too large: " + std::to_string(width)));
    }
}

TEST(ImageIntake, KeepsADrawingsProportions) {
    for (const auto& [attributes, size] : {std::pair("width='10' height='40'", QSize(256, 1024)),
                                           std::pair("viewBox='0 0 300 100'", QSize(1024, 341)),
                                           std::pair("width='1' height='5000'", QSize(1, 1024))})
        EXPECT_EQ(readPicture(drawing(attributes), "a.svg")->size(), size) << attributes;
}

TEST(ImageIntake, RefusesDrawingsThatReachForOtherFiles) {
    const std::string size = "width='8' height='8'";
    const auto base64 = [](const Bytes& data) { return array(data).toBase64().toStdString(); };
    const auto image = [](const std::string& link) {
        return "<image width='8' height='8' xlink:href='" + link + "'/>";
    };
    EXPECT_TRUE(readPicture(drawing(size, image("data:image/png;base64," + base64(encoded(quarters(), "png")))),
                            "a.svg"));
    for (const std::string& content :
         {image("/etc/hostname.png"), image("other.png"), image("file:///dev/zero"),
          image("data:image/svg+xml;base64," + base64(drawing(size, image("/dev/zero")))),
          std::string("<?xml-stylesheet type='text/css' href='/dev/zero'?>")}) {
        const auto refused = readPicture(drawing(size, content), "a.svg");
        ASSERT_FALSE(refused) << content;
        EXPECT_THAT(refused.error().description, HasSubstr("takes in other files"));
    }
}

TEST(ImageIntake, SaysWhatWouldWork) {
    for (const std::string& data : {std::string(), std::string("just text"), std::string("<html/>"),
                                    std::string("%PDF-1.7"), std::string("icns\0\0\0\x08", 8)}) {
        const auto refused = readPicture(bytesOf(data), "notes.txt");
        ASSERT_FALSE(refused) << data;
        EXPECT_THAT(refused.error().description,
                    testing::AllOf(HasSubstr("“notes.txt” is "), HasSubstr("PNG")));
    }
}

} // namespace
} // namespace tavrik
