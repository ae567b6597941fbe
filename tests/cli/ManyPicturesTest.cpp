#include "RunningCompanion.h"
#include "platform/Icns.h"

#include <QBuffer>

#include <gmock/gmock.h>

#include <cstdlib>
#include <sstream>
#include <thread>

using namespace tavrik;
using namespace tavrik::test;
using testing::HasSubstr;

namespace {

constexpr int kPictures = 300;

/// A colour that tells the picture's number, whatever a lossy format does to it.
QColor colourOf(int number) {
    const auto level = [](int digit) { return 20 + 36 * digit; };
    return {level(number / 49), level(number / 7 % 7), level(number % 7)};
}

bool isNear(const QColor& a, const QColor& b) {
    constexpr int kLossy = 16;
    return std::abs(a.red() - b.red()) < kLossy && std::abs(a.green() - b.green()) < kLossy &&
           std::abs(a.blue() - b.blue()) < kLossy;
}

/// A whole file of one of the formats that are taken in.
QByteArray content(const QByteArray& format, const QImage& image) {
    const QColor colour = image.pixelColor(0, 0);
    if (format == "gif")
        return QByteArray::fromHex("47494638396101000100800000" + colour.name().toLatin1().mid(1) +
                                   "0000002c00000000010001000002024401003b");
    if (format == "svg")
        return QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg' width='%1' height='%2'>"
                              "<rect width='%1' height='%2' fill='%3'/></svg>")
            .arg(QString::number(image.width()), QString::number(image.height()), colour.name())
            .toUtf8();
    if (format == "icns") {
        const Bytes container = icns::encode(image);
        return {reinterpret_cast<const char*>(container.data()), static_cast<qsizetype>(container.size())};
    }
    QBuffer buffer;
    EXPECT_TRUE(buffer.open(QIODevice::WriteOnly) && image.save(&buffer, format, 95)) << format.toStdString();
    return buffer.data();
}

/// One of the ways in which a picture is none.
QByteArray damaged(const QByteArray& whole, int kind) {
    switch (kind % 4) {
    case 0:
        return whole.left(whole.size() / 2);
    case 1:
        return {};
    case 2:
        return "This is no picture, whatever its name says.";
    default: // a PNG that says it has 100,000 pixels a side, in a few bytes
        return QByteArray::fromHex("89504e470d0a1a0a0000000d49484452000186a0000186a00806000000a8520bc8"
                                   "0000000c49444154789c6360a03d00000064000186643c350000000049454e44ae426082");
    }
}

/// The pictures that sentences begin with, in their order. A plugin may have said something of its own.
std::vector<std::string> named(const std::string& errors) {
    const std::string quote = "“";
    std::vector<std::string> names;
    std::istringstream lines(errors);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(quote))
            names.push_back(line.substr(quote.size(), line.find("”") - quote.size()));
    }
    return names;
}

} // namespace

TEST(ManyPictures, AreTakenInInTheirOrderAndTheDamagedOnesRefusedOneByOne) {
    const QByteArray formats[] = {"png", "jpg", "bmp", "webp", "tiff", "gif", "svg", "icns", "ico"};
    const QSize sizes[] = {{40, 40}, {1, 1}, {64, 48}, {16, 200}, {130, 20}, {33, 77}};
    const RunningCompanion companion;
    const std::string bundleID = companion.plainApp();
    std::vector<std::string> arguments{"icon", "add", bundleID};
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
        arguments.push_back(companion.file(name, bytesOf(bytes.toStdString())).string());
    }

    const ToolResult added = companion.run(arguments);
    EXPECT_EQ(added.exitStatus, 1);
    EXPECT_EQ(named(added.errors), refused) << added.errors;
    EXPECT_THAT(added.output, HasSubstr(std::to_string(colours.size()) + " pictures are icons 0 to " +
                                        std::to_string(colours.size() - 1) + " of "));

    const QJsonObject row = companion.object({"icon", "list", bundleID, "--json"});
    const QJsonArray icons = row[QLatin1String("displayPaths")].toArray();
    ASSERT_EQ(icons.size(), static_cast<qsizetype>(colours.size()));
    EXPECT_EQ(row[QLatin1String("selectedIconIndex")].toInt(), icons.size() - 1);
    const auto check = [&](int first) {
        for (int index = first; index < icons.size(); index += 2) {
            const HostPath file = companion.hostPath(icons[index]);
            EXPECT_EQ(file.name(), "icon_" + std::to_string(index) + ".png");
            const QImage icon(QString::fromStdString(file.string()));
            ASSERT_EQ(icon.size(), QSize(1024, 1024)) << index;
            EXPECT_TRUE(isNear(icon.pixelColor(512, 512), colours[static_cast<std::size_t>(index)]))
                << index << " " << icon.pixelColor(512, 512).name().toStdString();
        }
    };
    std::thread other(check, 1);
    check(0);
    other.join();
}
