#include "practice/picture/DockLayout.h"

#include "platform/PosixFileManager.h"
#include "platform/practice/PracticeBookmarks.h"
#include "platform/practice/PropertyListFile.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

using namespace tavrik;
using namespace tavrik::practice;
using namespace tavrik::plist;

namespace {

const MacPath kPreferences("/com.apple.dock.plist");

Value tile(const char* type, Dictionary data) {
    return Dictionary{{"tile-type", type}, {"tile-data", std::move(data)}};
}

Value url(const char* text) {
    return Dictionary{{"_CFURLString", text}, {"_CFURLStringType", 15}};
}

Value tileOf(const char* text) {
    return tile("file-tile", {{"file-data", url(text)}});
}

struct DockLayoutTest : testing::Test {
    test::TemporaryFolder folder;
    PosixFileManager files{folder.path()};
};

} // namespace

TEST_F(DockLayoutTest, ReadsEveryKindOfTile) {
    const MacPath first("/Applications/First.app");
    const MacPath second("/Applications/Second One.app");
    for (const MacPath& path : {first, second, MacPath("/Users/practice/Downloads")})
        ASSERT_TRUE(files.createFolder(path));
    ASSERT_TRUE(files.create(MacPath("/Users/practice/letter.txt"), {}));
    const auto book = PracticeBookmarks(files).make(first);
    ASSERT_TRUE(book);
    const auto secondURL = url("file:///Applications/Second%20One.app/");

    const std::pair<Value, DockTile> cases[] = {
        {tile("file-tile",
              {{"book", *book}, {"file-data", secondURL}, {"file-label", "One"}, {"bundle-identifier", "x.1"}}),
         {TileKind::app, "One", "x.1", first}},
        {tile("file-tile", {{"book", Bytes{1, 2, 3}}, {"file-data", secondURL}}),
         {TileKind::app, "Second One", "", second}},
        {tileOf("/Applications/First.app"), {TileKind::app, "First", "", first}},
        {tileOf("file:///Applications/Gone.app/"), {TileKind::app, "", "", {}}},
        {tile("directory-tile", {{"file-data", url("file:///Users/practice/Downloads/")}}),
         {TileKind::folder, "Downloads", "", MacPath("/Users/practice/Downloads")}},
        {tileOf("file:///Users/practice/letter.txt"),
         {TileKind::file, "letter", "", MacPath("/Users/practice/letter.txt")}},
        {tile("spacer-tile", {{"file-label", ""}}), {TileKind::spacer, "", "", {}}},
        {tile("small-spacer-tile", {{"file-label", " "}}), {TileKind::smallSpacer, " ", "", {}}},
        {tile("file-tile", {{"book", "text"}, {"file-data", Array{}}, {"bundle-identifier", 5}}),
         {TileKind::app, "", "", {}}},
    };
    Array tiles{Value("no tile"), Dictionary{}};
    for (const auto& [tile, read] : cases)
        tiles.push_back(tile);
    ASSERT_TRUE(writePropertyList(files, kPreferences,
                                  Dictionary{{"persistent-apps", tiles}, {"persistent-others", 3}}));
    const auto layout = readDockLayout(files, kPreferences);
    ASSERT_TRUE(layout);
    ASSERT_EQ(layout->apps.size(), std::size(cases));
    for (std::size_t i = 0; i < std::size(cases); ++i)
        EXPECT_EQ(layout->apps[i], cases[i].second) << i;
    EXPECT_TRUE(layout->others.empty());
}

TEST_F(DockLayoutTest, ShowsRecentApplicationsUnlessTheyAreTurnedOff) {
    EXPECT_FALSE(readDockLayout(files, kPreferences));
    Dictionary preferences{{"recent-apps", Array{tile("file-tile", {{"file-label", "Lately"}})}}};
    for (bool shown : {true, false}) {
        preferences["show-recents"] = shown;
        ASSERT_TRUE(writePropertyList(files, kPreferences, preferences));
        EXPECT_EQ(readDockLayout(files, kPreferences)->recents.size(), shown ? 1u : 0u);
    }
}
