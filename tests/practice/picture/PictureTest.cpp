#include "practice/picture/Picture.h"

#include "platform/Icns.h"
#include "platform/Sqlite.h"
#include "platform/practice/CustomIcon.h"
#include "platform/practice/PracticeFileManager.h"
#include "support/FileTree.h"
#include "support/practice/PracticeVolume.h"

#include <QGuiApplication>

#include <gmock/gmock.h>

#include <algorithm>

using namespace tavrik;
using namespace tavrik::practice;
using testing::IsEmpty;

namespace {

class Picture : public testing::Test {
protected:
    static void SetUpTestSuite() {
        static int count = 0;
        static char* none = nullptr;
        s_application = std::make_unique<QGuiApplication>(count, &none);
    }

    static void TearDownTestSuite() { s_application.reset(); }

    QImage draw(PictureOptions options = {}) {
        auto picture = drawPicture(m_mac.root(), options, m_map);
        EXPECT_TRUE(picture) << (picture ? "" : picture.error().description);
        return picture ? *picture : QImage();
    }

    std::vector<Spot> spotsOf(const char* bundleID) const {
        std::vector<Spot> spots;
        std::ranges::copy_if(m_map.spots, std::back_inserter(spots),
                             [&](const Spot& spot) { return spot.bundleID == bundleID; });
        return spots;
    }

    test::PracticeVolume m_mac;
    PictureMap m_map;
    static std::unique_ptr<QGuiApplication> s_application;
};

std::unique_ptr<QGuiApplication> Picture::s_application;

/// The smallest rectangle with everything in which two pictures of one size differ.
QRect differenceOf(const QImage& first, const QImage& second) {
    QRect area;
    for (int y = 0; y < first.height(); ++y)
        for (int x = 0; x < first.width(); ++x)
            if (first.pixel(x, y) != second.pixel(x, y))
                area |= QRect(x, y, 1, 1);
    return area;
}

} // namespace

TEST_F(Picture, ShowsACustomIconWhereverItsApplicationIs) {
    const QImage before = draw();
    QImage square(128, 128, QImage::Format_ARGB32);
    square.fill(QColor(1, 254, 3));
    PracticeFileManager files(m_mac.root());
    const std::vector<Spot> spots = spotsOf("org.example.atlas");
    ASSERT_EQ(spots.size(), 2u); // Launchpad and Dock
    ASSERT_TRUE(writeCustomIcon(files, spots[0].path, icns::encode(square)));
    const QImage after = draw();
    for (const Spot& spot : spots) {
        const QPoint middle = spot.icon.center().toPoint();
        EXPECT_NE(before.pixelColor(middle), QColor(1, 254, 3)) << spot.where;
        EXPECT_EQ(after.pixelColor(middle), QColor(1, 254, 3)) << spot.where;
    }
}

TEST_F(Picture, ChangesWhenAndOnlyWhenSomethingShownChanges) {
    // What is written, and the identifier of what must look different; null for nothing.
    const std::pair<const char*, const char*> cases[] = {
        {"moddate = 1, storeid = 'x', category_id = 3", nullptr},
        {"title = 'Changed' WHERE bundleid = 'net.example.tessera'", "net.example.tessera"},
        {"bookmark = NULL WHERE bundleid = 'net.example.tidewater.helper'", nullptr},
        {"bookmark = NULL WHERE bundleid = 'org.example.orrery'", "org.example.orrery"},
    };
    QImage before = draw();
    for (const auto& [change, where] : cases) {
        auto connection = sqlite::Connection::open(m_mac.launchpadDatabase(), sqlite::OpenMode::readWrite);
        ASSERT_TRUE(connection->execute((std::string("UPDATE apps SET ") + change).c_str()));
        const QImage after = draw();
        ASSERT_EQ(after.size(), before.size()) << change;
        const QRect area = differenceOf(before, after);
        const QRect cell = where ? spotsOf(where).at(0).icon.toRect().adjusted(-40, -2, 40, 30) : QRect();
        EXPECT_TRUE(where ? !area.isEmpty() && cell.contains(area) : area.isEmpty()) << change;
        before = after;
    }
}

TEST_F(Picture, WritesNothingAndGrowsWithItsScale) {
    const auto tree = test::treeOf(m_mac.root());
    EXPECT_EQ(draw({.scale = 2, .appearance = Appearance::dark}).size(), draw().size() * 2);
    EXPECT_THAT(test::differences(tree, test::treeOf(m_mac.root())), IsEmpty());
}
