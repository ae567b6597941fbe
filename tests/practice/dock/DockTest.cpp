#include "practice/dock/Dock.h"

#include "platform/PathRules.h"
#include "platform/Sqlite.h"
#include "platform/practice/Layout.h"
#include "platform/practice/PracticeFileManager.h"
#include "platform/practice/PropertyListFile.h"
#include "practice/tools/SystemTools.h"
#include "support/practice/PracticeVolume.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <set>

namespace tavrik::practice {
namespace {

using test::LaunchpadItem;
using ::testing::SizeIs;

const MacPath kWrappers = kHome / "Applications/Tavrik";

struct DockTest : testing::Test {
    /// A bundle like the program's own: links to the contents of another application.
    MacPath addWrapper(const std::string& name) {
        const MacPath wrapper = kWrappers / (name + ".app");
        EXPECT_TRUE(files.createFolder(wrapper));
        EXPECT_TRUE(files.createLink(wrapper / "Contents", "/Applications/Ferrule.app/Contents"));
        registerBundle("-f", wrapper);
        return wrapper;
    }

    void registerBundle(const char* option, const MacPath& path) {
        EXPECT_EQ(
            runSystemTool({volume.root(), {}, {}}, kLaunchServicesTool, {option, path.string()}).exitStatus, 0);
    }

    std::optional<LaunchpadItem> rowOf(const MacPath& path) const {
        const auto rows = volume.launchpadItems();
        const auto row = std::ranges::find(rows, path, &LaunchpadItem::path);
        return row == rows.end() ? std::nullopt : std::optional(*row);
    }

    /// How many items stand in a page or the root. Their places must be dense from 0.
    std::size_t countIn(std::int64_t parent) const {
        std::set<std::size_t> places;
        std::size_t count = 0;
        for (const LaunchpadItem& item : volume.launchpadItems())
            if (item.parent == parent && ++count)
                places.insert(static_cast<std::size_t>(item.ordering));
        EXPECT_TRUE(count > 0 && places.size() == count && *places.rbegin() == count - 1) << "in " << parent;
        return count;
    }

    std::int64_t number(const std::string& sql) const {
        auto connection = sqlite::Connection::open(volume.launchpadDatabase(), sqlite::OpenMode::readWrite);
        auto statement = connection->prepare(sql);
        return statement.step() == sqlite::Step::row ? statement.int64(0).value_or(-1) : -1;
    }

    bool stands(const char* suffix) const {
        return std::filesystem::exists(volume.launchpadDatabase().string() + suffix);
    }

    test::PracticeVolume volume;
    PracticeFileManager files{volume.root()};
};

TEST_F(DockTest, IndexesAWrapperAtTheEndOfTheLastPageWhateverACrashLeftAndMovesNobody) {
    auto writer = sqlite::Connection::open(volume.launchpadDatabase(), sqlite::OpenMode::readWrite);
    ASSERT_TRUE(writer->execute("UPDATE dbinfo SET value='1' WHERE key='ignore_items_update_triggers'"));
    const auto before = volume.launchpadItems();
    const MacPath wrapper = addWrapper("Ferrule");
    Dock dock(volume.root());
    EXPECT_EQ(rowOf(wrapper), std::nullopt);
    ASSERT_TRUE(dock.index());

    const auto row = rowOf(wrapper);
    ASSERT_TRUE(row);
    EXPECT_TRUE(row->title == "Ferrule" && row->bundleID == "org.example.ferrule" && row->flags == 0) << *row;
    const auto lastPage =
        number("SELECT rowid FROM items WHERE type = 3 AND parent_id = 1 ORDER BY ordering DESC LIMIT 1");
    EXPECT_EQ(row->parent, lastPage);
    EXPECT_EQ(row->ordering, countIn(lastPage) - 1);
    auto after = volume.launchpadItems();
    std::erase(after, *row);
    EXPECT_EQ(after, before);

    EXPECT_EQ(number("SELECT value + 0 FROM dbinfo WHERE key = 'ignore_items_update_triggers'"), 0);
    EXPECT_EQ(number("SELECT COUNT(*) FROM image_cache WHERE item_id = " + std::to_string(row->row)), 1);

    ASSERT_TRUE(dock.index());
    EXPECT_THAT(volume.launchpadItems(), SizeIs(before.size() + 1)) << "one row for each path";
}

TEST_F(DockTest, FillsPagesOfThirtyFiveAndMakesNewOnes) {
    for (int i = 0; i < 80; ++i)
        addWrapper("Copy " + std::to_string(i));
    const auto pagesBefore = number("SELECT COUNT(*) FROM items WHERE type = 3 AND parent_id = 1");
    ASSERT_TRUE(Dock(volume.root()).index());

    std::set<std::int64_t> filled;
    for (const LaunchpadItem& item : volume.launchpadItems())
        if (item.path.isInside(kWrappers))
            filled.insert(item.parent);
    ASSERT_GE(filled.size(), 3u);
    for (const std::int64_t page : filled)
        EXPECT_LE(countIn(page), 35u) << "page " << page;
    EXPECT_EQ(countIn(1), static_cast<std::size_t>(pagesBefore) + filled.size() - 1);
    EXPECT_EQ(number("SELECT COUNT(*) FROM items WHERE type = 3 AND rowid NOT IN (SELECT item_id FROM groups)"),
              0);
}

TEST_F(DockTest, RemovesRowsOfRegisteredBundlesThatAreGoneAndNoOthers) {
    const MacPath wrapper = addWrapper("Ferrule");
    const MacPath kept = addWrapper("Kept");
    ASSERT_TRUE(Dock(volume.root()).index());
    const auto before = volume.launchpadItems();
    ASSERT_TRUE(files.remove(wrapper));

    const Dock dock(volume.root());
    EXPECT_EQ(rowOf(wrapper), std::nullopt);
    EXPECT_EQ(rowOf(kept).value().ordering, countIn(rowOf(kept)->parent) - 1) << "the gap must close";
    EXPECT_THAT(volume.launchpadItems(), SizeIs(before.size() - 1)) << "dead bookmarks of others stay";
}

TEST_F(DockTest, IndexesOnlyBundlesThatStandAreRegisteredAndOnlyWhenItIndexes) {
    const auto before = volume.launchpadItems();
    registerBundle("-u", addWrapper("Unregistered"));
    const MacPath dangling = addWrapper("Dangling");
    ASSERT_TRUE(files.remove(dangling / "Contents"));
    ASSERT_TRUE(Dock(volume.root()).index());
    EXPECT_EQ(volume.launchpadItems(), before);

    addWrapper("Ferrule");
    ASSERT_TRUE(writeDockBehaviour(volume.root(), {.indexes = false}));
    EXPECT_TRUE(Dock(volume.root()).index());
    EXPECT_EQ(volume.launchpadItems(), before);
}

TEST_F(DockTest, LeavesTheWriteAheadLogWhenKilledAndNoneWhenItQuits) {
    const MacPath wrapper = addWrapper("Ferrule");
    {
        Dock dock(volume.root());
        ASSERT_TRUE(dock.index());
        EXPECT_TRUE(stands("-wal") && stands("-shm"));
    }
    EXPECT_TRUE(stands("-wal"));
    Dock dock(volume.root());
    dock.quit();
    EXPECT_FALSE(stands("-wal") || stands("-shm"));
    EXPECT_TRUE(rowOf(wrapper)) << "what was committed must survive the kill";

    std::filesystem::remove(volume.launchpadDatabase().string());
    EXPECT_FALSE(Dock(volume.root()).index());
    EXPECT_FALSE(stands("")) << "none is made where none is";
}

TEST_F(DockTest, WritesItsCopyOfThePreferencesOnlyWhenItQuits) {
    plist::Value expected = volume.dockPreferences();
    const plist::Value changed(plist::Dictionary{{"autohide", true}});
    Dock dock(volume.root());
    ASSERT_TRUE(writePropertyList(files, dockPreferencesPath(kHome), changed));
    EXPECT_EQ(volume.dockPreferences(), changed);
    dock.quit();
    expected.as<plist::Dictionary>()->at("mod-count") = *expected.find<std::int64_t>("mod-count") + 1;
    EXPECT_EQ(volume.dockPreferences(), expected);
}

} // namespace
} // namespace tavrik::practice
