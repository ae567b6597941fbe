#include "system/IconManager.h"

#include "platform/Icns.h"
#include "platform/Png.h"
#include "platform/PropertyList.h"
#include "platform/Workspace.h"
#include "support/LogRecorder.h"
#include "support/SmallMac.h"

#include <QColorSpace>
#include <QPainter>

#include <gtest/gtest.h>

#include <utility>

namespace tavrik {
namespace {

QImage plain(int width, int height, QColor colour) {
    QImage picture(width, height, QImage::Format_ARGB32);
    picture.fill(colour);
    return picture;
}

Bytes iconFile(QColor colour) {
    return icns::encode(plain(1024, 1024, colour));
}

struct IconManagerTest : testing::Test {
    void write(const char* relative, ByteView data) {
        ignoreFailure(small.files.createFolder((bundle / relative).parent()));
        ASSERT_TRUE(small.files.write(bundle / relative, data));
    }

    void nameIcon(const plist::Value& value, const char* place = "Contents/Info.plist") {
        write(place, *plist::serialize(plist::Dictionary{{"CFBundleIconFile", value}}, plist::Format::binary));
    }

    QColor colour() { return icons.appIcon(bundle).pixelColor(1023, 1023); }

    test::SmallMac small;
    IconManager icons{small.mac};
    const MacPath bundle{"/Applications/Atlas.app"};
};

TEST_F(IconManagerTest, ReadsTheFirstIconFileThatLoadsAtItsFullSize) {
    write("Contents/Resources/Atlas.icns", iconFile(Qt::red));
    write("Contents/Resources/Icon.icns", iconFile(Qt::green));
    write("Contents/Resources/app.icns", iconFile(Qt::blue));

    using Case = std::pair<plist::Value, Qt::GlobalColor>;
    for (const auto& [named, expected] :
         {Case{"Atlas", Qt::red}, Case{"Atlas.icns", Qt::red}, Case{"Missing", Qt::green}, Case{"", Qt::green},
          Case{7, Qt::green}, Case{"../Resources/Atlas", Qt::green}, Case{"app", Qt::blue}}) {
        nameIcon(named);
        EXPECT_EQ(colour(), QColor(expected));
    }
    write("Contents/Info.plist", bytesOf("damaged"));
    EXPECT_EQ(colour(), QColor(Qt::green));
    nameIcon("Atlas");
    write("Contents/Resources/Atlas.icns", ByteView(iconFile(Qt::red)).first(500));
    EXPECT_EQ(colour(), QColor(Qt::green));
}

TEST_F(IconManagerTest, LooksIntoIOSApplicationsAndFallsBackToTheWorkspace) {
    write("Contents/Resources/Assets.car", bytesOf("BOMStore"));
    EXPECT_FALSE(icons.appIcon(bundle).isNull());
    EXPECT_FALSE(icons.appIcon(MacPath("/nowhere")).isNull());
    EXPECT_TRUE(small.mac.workspace.setIcon(bundle, plain(512, 512, Qt::magenta)));
    EXPECT_EQ(icons.appIcon(bundle), small.mac.workspace.icon(bundle));

    nameIcon("Atlas", "Wrapper/Inner.app/Info.plist");
    write("Wrapper/Inner.app/Atlas.icns", iconFile(Qt::red));
    ignoreFailure(small.files.createLink(bundle / "WrappedBundle", "Wrapper/Inner.app"));
    EXPECT_EQ(colour(), QColor(Qt::red));
}

TEST_F(IconManagerTest, ReadsTheSmallestSizeThatIsEnough) {
    std::string content;
    const auto append = [&](std::string_view type, ByteView data) {
        content += type;
        for (const int shift : {24, 16, 8, 0})
            content += static_cast<char>((data.size() + 8) >> shift);
        content += textOf(data);
    };
    append("ic09", *png::encode(plain(512, 512, Qt::green)));
    append("ic07", *png::encode(plain(128, 128, Qt::red)));
    append("ic08", bytesOf("\xFF\x4F\xFF\x51")); // JPEG 2000
    append("ic13", *png::encode(plain(256, 256, Qt::blue)));
    append("ic14", *png::encode(plain(512, 512, Qt::yellow)));
    const std::string elements = std::exchange(content, {});
    append("icns", bytesOf(elements));
    write("Contents/Resources/icon.icns", bytesOf(content));

    using Case = std::pair<int, Qt::GlobalColor>;
    for (const auto& [atLeast, expected] : {Case{128, Qt::red}, Case{129, Qt::blue}, Case{2000, Qt::green}})
        EXPECT_EQ(icons.appIcon(bundle, atLeast).pixelColor(0, 0), QColor(expected)) << atLeast;
}

TEST_F(IconManagerTest, RecognisesAnIconByItsFileOrElseByItsBitmap) {
    const auto data = [&] {
        const auto found = icons.appIconData(bundle, 100);
        return std::pair(found.byteCount, found.beginning);
    };
    ASSERT_TRUE(small.files.createFolder(bundle));
    QImage icon = plain(512, 512, Qt::transparent);
    EXPECT_TRUE(small.mac.workspace.setIcon(bundle, icon));
    const auto empty = data();
    QPainter(&icon).fillRect(100, 100, 300, 300, Qt::red);
    EXPECT_TRUE(small.mac.workspace.setIcon(bundle, icon));
    EXPECT_NE(data(), empty) << "though they begin alike";

    const Bytes file = iconFile(Qt::red);
    write("Contents/Resources/Icon.icns", file);
    for (const ByteView damaged : {ByteView(file).first(500), bytesOf("icns"), bytesOf("no picture")}) {
        write("Contents/Resources/icon.icns", damaged);
        EXPECT_EQ(data(), std::pair(file.size(), Bytes(file.begin(), file.begin() + 100)));
    }
    const Bytes picture = *png::encode(plain(2, 2, Qt::blue));
    write("Contents/Resources/icon.icns", picture);
    EXPECT_EQ(data(), std::pair(picture.size(), picture)) << "a plain picture under that name";
}

TEST_F(IconManagerTest, TriesACustomIconThreeTimes) {
    using namespace std::chrono_literals;
    test::LogRecorder log;
    const MacPath late("/late");
    small.clock.schedule(150ms, [&] { EXPECT_TRUE(small.files.createFolder(late)); });
    EXPECT_TRUE(icons.setCustomIcon(plain(16, 16, Qt::red), late));
    EXPECT_FALSE(icons.setCustomIcon(plain(16, 16, Qt::red), MacPath("/never")));
    EXPECT_EQ(small.clock.waits(), std::vector(5, 100ms));
    EXPECT_TRUE(small.files.exists(late / "Icon\r"));
    EXPECT_FALSE(icons.setCustomIcon(QImage(), late));
    EXPECT_FALSE(small.files.exists(late / "Icon\r")) << "an old icon goes first";
    for (const char* line :
         {"Successfully set custom icon for /late", "Failed to set icon on attempt 3, retrying...",
          "ERROR: Failed to set custom icon for /never after 3 attempts", "ERROR: Failed to copy icon"})
        EXPECT_EQ(log.count(line), 1u) << line;
}

TEST(SquareIcons, FitAndCentreWithTheOddRemainderToTheRightAndTheBottom) {
    const QColor green(10, 200, 90);
    for (const auto& [size, drawn] :
         {std::pair(QSize(512, 256), QRect(0, 256, 1024, 512)),
          std::pair(QSize(2000, 2000), QRect(0, 0, 1024, 1024)),
          std::pair(QSize(1024, 3), QRect(0, 510, 1024, 3)),
          std::pair(QSize(1023, 1024), QRect(0, 0, 1023, 1024)),
          std::pair(QSize(1, 1), QRect(0, 0, 1024, 1024)), std::pair(QSize(5000, 1), QRect(0, 511, 1024, 1))}) {
        QImage expected(1024, 1024, QImage::Format_ARGB32_Premultiplied);
        expected.fill(Qt::transparent);
        expected.setColorSpace(QColorSpace::SRgb);
        QPainter(&expected).fillRect(drawn, green);
        const auto square = IconManager::squareIcon(plain(size.width(), size.height(), green));
        EXPECT_TRUE(square == expected) << size.width() << " x " << size.height();
        EXPECT_EQ(IconManager::squareIcon(*square)->constBits(), square->constBits()) << "no copy of a square";
    }
}

TEST(SquareIcons, KeepTransparencyWithoutADarkEdge) {
    EXPECT_EQ(qAlpha(IconManager::squareIcon(plain(300, 300, QColor(255, 0, 0, 128)))->pixel(512, 512)), 128);
    EXPECT_EQ(qAlpha(IconManager::squareIcon(QImage())->pixel(0, 0)), 0);
    QImage halves = plain(64, 64, Qt::transparent);
    for (int pixel = 0; pixel < 64 * 32; ++pixel)
        halves.setPixelColor(pixel % 32, pixel / 32, Qt::white);
    // The black of the transparent half must not darken the edge.
    const QImage scaled = *IconManager::squareIcon(halves);
    for (int x = 0; x < 1024; ++x)
        EXPECT_TRUE(scaled.pixelColor(x, 512).alpha() <= 8 || scaled.pixelColor(x, 512).red() >= 240) << x;
}

} // namespace
} // namespace tavrik
