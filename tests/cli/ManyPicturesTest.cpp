#include "RunningCompanion.h"
#include "platform/Icns.h"

#include <QBuffer>

#include <cstdlib>
#include <future>

using namespace tavrik;
using namespace tavrik::test;
using testing::HasSubstr;

namespace {

using ManyPictures = RunningCompanion;

constexpr int kPictures = 300;

/// A colour that tells the picture's number, whatever a lossy format does to it.
QColor colourOf(int number) {
    return {20 + 36 * (number / 49), 20 + 36 * (number / 7 % 7), 20 + 36 * (number % 7)};
}

bool isNear(const QColor& a, const QColor& b) {
    const auto differ = [](int one, int other) { return std::abs(one - other) >= 16; };
    return !differ(a.red(), b.red()) && !differ(a.green(), b.green()) && !differ(a.blue(), b.blue());
}

/// A whole file of one of the formats that are taken in.
QByteArray content(const QByteArray& format, const QImage& image) {
    const QByteArray colour = image.pixelColor(0, 0).name().toLatin1();
    if (format == "gif")
        return QByteArray::fromHex("47494638396101000100800000" + colour.mid(1) +
                                   "0000002c00000000010001000002024401003b");
    if (format == "svg")
        return "<svg xmlns='http://www.w3.org/2000/svg' width='16' height='200'>"
               "<rect width='16' height='200' fill='" +
               colour + "'/></svg>";
    if (format == "icns")
        return QByteArrayView(icns::encode(image)).toByteArray();
    QBuffer buffer;
    EXPECT_TRUE(buffer.open(QIODevice::WriteOnly) && image.save(&buffer, format, 95)) << format.toStdString();
    return buffer.data();
}

/// One of the ways in which a picture is none.
QByteArray damaged(const QByteArray& whole, int kind) {
    const QByteArray hugePng = // 100,000 pixels a side, in a few bytes
        QByteArray::fromHex("89504e470d0a1a0a0000000d49484452000186a0000186a00806000000a8520bc8"
                            "0000000c49444154789c6360a03d00000064000186643c350000000049454e44ae426082");
    const QByteArray kinds[] = {whole.left(whole.size() / 2), {}, "This is no picture.", hugePng};
    return kinds[kind % 4];
}

} // namespace

TEST_F(ManyPictures, AreTakenInInTheirOrderAndTheDamagedOnesRefusedOneByOne) {
    const QByteArray formats[] = {"png", "jpg", "bmp", "webp", "tiff", "gif", "svg", "icns", "ico"};
    const QSize sizes[] = {{40, 40}, {1, 1}, {64, 48}, {16, 200}, {130, 20}, {33, 77}};
    Arguments arguments{"icon", "add", kAtlas};
    std::vector<QColor> colours;
    std::vector<std::string> refused;
    for (int number = 0; number < kPictures; ++number) {
        const QByteArray& format = formats[number % 9];
        const std::string name = "picture-" + std::to_string(number) + "." + format.toStdString();
        QImage image(number % 60 == 19 ? QSize(2400, 1600) : sizes[number % 6], QImage::Format_RGB32);
        image.fill(colourOf(number));
        QByteArray bytes = content(format, image);
        if (number % 11 == 5) {
            bytes = damaged(bytes, number / 11);
            refused.push_back(name);
        } else {
            colours.push_back(colourOf(number));
        }
        arguments.push_back(file(name, bytesOf(bytes.toStdString())));
    }

    const ToolResult added = run(arguments, 1);
    std::size_t sentence = 0;
    for (const std::string& name : refused) {
        sentence = added.errors.find("“" + name + "”", sentence);
        ASSERT_NE(sentence, std::string::npos) << name << "\n" << added.errors;
    }
    EXPECT_THAT(added.output, HasSubstr(std::to_string(colours.size()) + " pictures are icons 0 to " +
                                        std::to_string(colours.size() - 1) + " of "));

    const QJsonObject row = json({"icon", "list", kAtlas}).object();
    const QJsonArray icons = row[QLatin1String("displayPaths")].toArray();
    ASSERT_EQ(icons.size(), static_cast<qsizetype>(colours.size()));
    EXPECT_EQ(row[QLatin1String("selectedIconIndex")].toInt(), icons.size() - 1);
    const auto check = [&](int first) {
        for (int index = first; index < icons.size(); index += 2) {
            EXPECT_TRUE(icons[index].toString().endsWith(QStringLiteral("/icon_%1.png").arg(index)));
            const QImage icon = pictureAt(icons[index]);
            ASSERT_EQ(icon.size(), QSize(1024, 1024)) << index;
            EXPECT_TRUE(isNear(icon.pixelColor(512, 512), colours[static_cast<std::size_t>(index)]))
                << index << " " << icon.pixelColor(512, 512).name().toStdString();
        }
    };
    const auto other = std::async(std::launch::async, check, 1);
    check(0);
}
