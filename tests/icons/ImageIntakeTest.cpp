#include "icons/ImageIntake.h"

#include "platform/Icns.h"

#include <QBuffer>
#include <QColorSpace>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tavrik {
namespace {

using testing::HasSubstr;

Result<QImage> read(const QByteArray& data) {
    return readPicture(bytesOf({data.data(), static_cast<std::size_t>(data.size())}), "Atlas");
}

/// A picture whose four quarters differ, one of them half transparent.
QImage quarters() {
    QImage picture(48, 32, QImage::Format_ARGB32);
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 48; ++x)
            picture.setPixelColor(
                x, y, QColor(x < 24 ? 250 : 20, y < 16 ? 240 : 30, 60, x < 24 || y < 16 ? 255 : 128));
    return picture;
}

QByteArray encoded(const QImage& picture, const char* format) {
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(picture.save(&buffer, format, 100)) << format;
    return data;
}

QByteArray drawing(const QByteArray& attributes,
                   const QByteArray& content = "<rect width='9' height='9' fill='red'/>") {
    return "<?xml version='1.0'?><!-- note --><svg xmlns='http://www.w3.org/2000/svg' "
           "xmlns:xlink='http://www.w3.org/1999/xlink' " +
           attributes + ">" + content + "</svg>";
}

std::map<std::string, QByteArray> samples() {
    std::map<std::string, QByteArray> samples{
        // The drawing below without the remarks, compressed.
        {"svgz", "H4sIAAAAAAACA0WMuw6AIAwAf4WtG21g0gA/Iwgk+Ag21s9XB+N2yV3OHWdW19LWw0Nh3kdEEdFi9dYzGiLCpwAlNXLx"
                 "YAlUSTUX9mAIgutp4k8Ov3twrq156CkCBvdOwg2G1rnbbAAAAA=="},
        // Two frames of 16 by 8: red, then blue.
        {"gif", "R0lGODlhEAAIAIAAAP8AAAAA/yH5BAAKAAAALAAAAAAQAAgAAAIKhI+py+0Po5ysAAAsAAAAABAACAAAAgqMj6nL7Q+j"
                "nKwAADs="},
        // 16 by 16 in black and, behind it, 64 by 64 in yellow.
        {"ico", "AAABAAIAEBAAAAEAIABUAAAAJgAAAEBAAAABACAAVwAAAHoAAACJUE5HDQoaCgAAAA1JSERSAAAAEAAAABABAwAAACU9"
                "bSIAAAADUExURQAAAKd6PdoAAAAMSURBVHjaY2AgDQAAADAAASh0SX0AAAAASUVORK5CYIKJUE5HDQoaCgAAAA1JSERS"
                "AAAAQAAAAEABAwAAAJCn450AAAADUExURfrwPCT6VuYAAAAPSURBVHjaY2AYBaOAfAAAAkAAAeBNHUQAAAAASUVORK5C"
                "YII="},
        // 4 by 2 in yellow.
        {"tga",
         "AAACAAAAAAAAAAAABAACABggPPD6PPD6PPD6PPD6PPD6PPD6PPD6PPD6AAAAAAAAAABUUlVFVklTSU9OLVhGSUxFLgA="}};
    for (auto& [kind, data] : samples)
        data = QByteArray::fromBase64(data);
    for (const char* format : {"png", "jpg", "tiff", "webp", "bmp", "ppm", "xpm"})
        samples[format] = encoded(quarters(), format);
    samples["svg"] = drawing("width='30' height='20'");
    const Bytes icns = icns::encode(quarters().scaled(64, 64));
    samples["icns"] = {reinterpret_cast<const char*>(icns.data()), static_cast<qsizetype>(icns.size())};
    return samples;
}

TEST(ImageIntake, ReadsEveryKindWhateverTheFileIsCalled) {
    const std::map<std::string, QSize> sizes{{"gif", {16, 8}},      {"svg", {1024, 683}}, {"icns", {64, 64}},
                                             {"svgz", {1024, 683}}, {"ico", {64, 64}},    {"tga", {4, 2}}};
    for (const auto& [kind, data] : samples()) {
        const auto picture = read(data);
        ASSERT_TRUE(picture) << kind << picture.error().description;
        EXPECT_EQ(picture->size(), sizes.contains(kind) ? sizes.at(kind) : QSize(48, 32)) << kind;
        EXPECT_EQ(picture->colorSpace(), QColorSpace(QColorSpace::SRgb)) << kind;
        EXPECT_NEAR(picture->pixelColor(1, 1).red(), 250, 10) << kind;
    }
    EXPECT_EQ(read(samples().at("png"))->pixelColor(40, 30).alpha(), 128);
    EXPECT_EQ(read(samples().at("gif"))->pixelColor(15, 7), QColor(Qt::red));
}

TEST(ImageIntake, RefusesEveryCutOfEveryKind) {
    for (const auto& [kind, data] : samples()) {
        const auto whole = read(data);
        for (qsizetype length = 0; length < data.size(); length += 1 + data.size() / 400) {
            // What is lost may be no part of the first picture: then it must come out whole.
            const auto cut = read(data.first(length));
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
    const auto picture = read(encoded(quarters(), "jpg").insert(2, exif));
    ASSERT_TRUE(picture);
    ASSERT_EQ(picture->size(), QSize(32, 48));
    EXPECT_NEAR(picture->pixelColor(1, 1).red(), 250, 10);
    EXPECT_NEAR(picture->pixelColor(1, 1).green(), 30, 10); // the bottom left quarter of before
}

TEST(ImageIntake, KeepsADrawingsProportions) {
    for (const auto& [attributes, size] : {std::pair("width='10' height='40'", QSize(256, 1024)),
                                           std::pair("viewBox='0 0 300 100'", QSize(1024, 341)),
                                           std::pair("width='1' height='5000'", QSize(1, 1024))})
        EXPECT_EQ(read(drawing(attributes))->size(), size) << attributes;
}

TEST(ImageIntake, RefusesWhatIsNoPictureOrHugeOrReachesForOtherFilesAndSaysSo) {
    const auto blank = [](int width, int height) {
        QImage picture(width, height, QImage::Format_Mono);
        picture.fill(0);
        return encoded(picture, "png");
    };
    const auto showing = [](const QByteArray& link) {
        return drawing("width='8' height='8'", "<image width='8' height='8' xlink:href='" + link + "'/>");
    };
    const std::vector<std::pair<std::string, std::vector<QByteArray>>> refusals{
        {"empty. Use a PNG", {""}},
        {"not a picture of a kind that can be read. Use a PNG", {"just text", "<html/>", "%PDF-1.7"}},
        {"an icon file without a picture that can be read here", {QByteArray("icns\0\0\0\x08", 8)}},
        {"too large: 1", {blank(16'385, 1), blank(1, 100'000), blank(16'384, 16'384)}},
        {"a drawing that takes in other files",
         {showing("/etc/hostname.png"), showing("other.png"), showing("file:///dev/zero"),
          showing("data:image/svg+xml;base64," + showing("/dev/zero").toBase64()),
          drawing("width='8'", "<?xml-stylesheet type='text/css' href='/dev/zero'?>")}},
    };
    for (const auto& [why, files] : refusals) {
        for (const QByteArray& data : files) {
            const auto refused = read(data);
            ASSERT_FALSE(refused) << why;
            EXPECT_THAT(refused.error().description, HasSubstr("“Atlas” is " + why));
        }
    }
    EXPECT_TRUE(read(showing("data:image/png;base64," + encoded(quarters(), "png").toBase64())));
}

} // namespace
} // namespace tavrik
