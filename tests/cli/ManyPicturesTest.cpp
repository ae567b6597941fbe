#include "RunningCompanion.h"
#include "platform/Icns.h"

#include <QBuffer>

#include <gmock/gmock.h>

#include <algorithm>
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

QByteArray gif(const QColor& colour) {
    const auto byte = [](int value) { return QByteArray(1, static_cast<char>(value)); };
    return QByteArray::fromHex("4749463839610100010080 0000") + byte(colour.red()) + byte(colour.green()) +
           byte(colour.blue()) + QByteArray::fromHex("000000 2c00000000010001000002024401003b");
}

QByteArray svg(const QColor& colour, QSize size) {
    return QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg' width='%1' height='%2'>"
                          "<rect width='%1' height='%2' fill='%3'/></svg>")
        .arg(size.width())
        .arg(size.height())
        .arg(colour.name())
        .toUtf8();
}

/// A whole file of one of the formats that are taken in.
QByteArray content(const std::string& format, const QImage& image) {
    const QColor colour = image.pixelColor(0, 0);
    if (format == "gif")
        return gif(colour);
    if (format == "svg")
        return svg(colour, image.size());
    if (format == "icns") {
        const Bytes container = icns::encode(image);
        return {reinterpret_cast<const char*>(container.data()), static_cast<qsizetype>(container.size())};
    }
    QBuffer buffer;
    EXPECT_TRUE(buffer.open(QIODevice::WriteOnly) && image.save(&buffer, format.c_str(), 95)) << format;
    return buffer.data();
}

/// A PNG that says it has 100,000 pixels a side, in a few bytes.
QByteArray hugePng() {
    return QByteArray::fromHex("89504e470d0a1a0a"
                               "0000000d49484452000186a0000186a00806000000a8520bc8"
                               "0000000c49444154789c6360a03d00000064000186643c35"
                               "0000000049454e44ae426082");
}

/// What is wrong with the picture of this number; empty for a good one.
std::string damageOf(int number) {
    static const char* const kinds[] = {"cut", "empty", "text", "huge"};
    return number % 11 == 5 ? kinds[number / 11 % 4] : "";
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

struct Picture {
    std::string file;
    QColor colour;
    bool isGood = true;
};

Picture make(const RunningCompanion& companion, int number) {
    static const char* const formats[] = {"png", "jpg", "bmp", "webp", "tiff", "gif", "svg", "icns", "ico"};
    static const QSize sizes[] = {{40, 40}, {1, 1}, {64, 48}, {16, 200}, {130, 20}, {33, 77}};
    const std::string format = formats[number % 9];
    QSize size = sizes[number % 6];
    if (number % 60 == 19)
        size = {2400, 1600};
    QImage image(size, QImage::Format_RGB32);
    image.fill(colourOf(number));

    const std::string damage = damageOf(number);
    QByteArray bytes = damage == "huge" ? hugePng() : content(format, image);
    if (damage == "cut")
        bytes = bytes.left(bytes.size() / 2);
    else if (damage == "empty")
        bytes.clear();
    else if (damage == "text")
        bytes = "This is no picture, whatever its name says.";
    const std::string name = "picture-" + std::to_string(number) + "." + format;
    const HostPath file = companion.file(name, bytesOf(bytes.toStdString()));
    return {.file = file.string(), .colour = colourOf(number), .isGood = damage.empty()};
}

} // namespace

TEST(ManyPictures, AreTakenInInTheirOrderAndTheDamagedOnesRefusedOneByOne) {
    const RunningCompanion companion;
    const std::string bundleID = companion.plainApp();
    std::vector<std::string> arguments{"icon", "add", bundleID};
    std::vector<QColor> colours;
    std::vector<std::string> refused;
    for (int number = 0; number < kPictures; ++number) {
        const Picture picture = make(companion, number);
        arguments.push_back(picture.file);
        if (picture.isGood)
            colours.push_back(picture.colour);
        else
            refused.push_back(HostPath(picture.file).name());
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
