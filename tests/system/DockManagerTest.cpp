#include "system/DockManager.h"

#include "model/SettingsManager.h"
#include "platform/Bookmarks.h"
#include "platform/PathRules.h"
#include "support/LogRecorder.h"
#include "support/SmallMac.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <cmath>
#include <functional>

namespace tavrik::test {

namespace {

using plist::Array;
using plist::Dictionary;
using plist::Value;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

const MacPath kHome{"/Users/practice"};
const MacPath kPlist = dockPreferencesPath(kHome);
const MacPath kBackup = dockPreferencesBackupPath(kHome);
const MacPath kAtlas{"/Applications/Atlas.app"};
const MacPath kWrapper = wrapperFolder(kHome) / "Atlas.app";
const std::string kID = "org.example.atlas";

Value tile(Dictionary data) {
    return Dictionary{{"GUID", 4266038770}, {"tile-data", std::move(data)}, {"tile-type", "file-tile"}};
}

class DockManagerTest : public testing::Test {
protected:
    DockManagerTest() {
        for (const MacPath& folder : {kAtlas, kWrapper, kPlist.parent()})
            EXPECT_TRUE(mac.files.createFolder(folder));
        writePreferences(sample());
    }

    /// Preferences with everything odd that real files have in front of the tile that is looked for.
    Value sample() const {
        const Bytes book = *mac.mac.bookmarks.make(kAtlas);
        return Dictionary{
            {"mod-count", 41},
            {"tilesize", 48.5},
            {"persistent-others", Array{tile({{"bundle-identifier", kID}})}},
            {"persistent-apps",
             Array{Value("no tile"), tile({{"file-label", ""}}), Dictionary{{"tile-data", 7}},
                   tile({{"bundle-identifier", Dictionary{}}, {"book", 3}}),
                   tile({{"bundle-identifier", kID},
                         {"book", book},
                         {"file-data", Dictionary{{"_CFURLString", "file:///Applications/Atlas.app/"},
                                                  {"_CFURLStringType", 15}}},
                         {"file-mod-date", Dictionary{}},
                         {"file-label", "Atlas"}}),
                   tile({{"bundle-identifier", kID}, {"book", book}})}}};
    }

    void writePreferences(const Value& preferences) {
        ASSERT_TRUE(mac.practice.mac().files.write(kPlist, *plist::serialize(preferences, plist::Format::xml)));
    }

    Bytes content(const MacPath& file) { return *mac.practice.mac().files.read(file); }

    Value preferences() { return *plist::parse(content(kPlist)); }

    /// The sample as it must be when its tile leads to this bundle and the file was written `writes` times.
    Value expected(const MacPath& target, int writes, const Bytes& book) {
        Value wanted = sample();
        Dictionary& data =
            *(*wanted.find("persistent-apps")->as<Array>())[4].find("tile-data")->as<Dictionary>();
        data["book"] = book;
        (*data["file-data"].as<Dictionary>())["_CFURLString"] = mac.mac.bookmarks.fileURL(target);
        data["file-mod-date"] = static_cast<std::int64_t>(
            std::floor(mac.practice.mac().files.attributes(target)->modified.sinceReference));
        *wanted.find("mod-count") = 41 + writes;
        return wanted;
    }

    SmallMac mac;
    SettingsManager settings{mac.mac};
    DockManager dock{mac.mac, settings};
    LogRecorder log;
};

} // namespace

TEST_F(DockManagerTest, RepointsTheFirstMatchingTileAndNothingElse) {
    const Bytes before = content(kPlist);
    int writes = 0;
    mac.files.setRule([&](const FileOperation& operation) -> std::optional<int> {
        if (operation.name == "write" && operation.path == kPlist) {
            ++writes;
            EXPECT_TRUE(SettingsManager(mac.practice.mac()).getDockBookmark(kID))
                << "safe before the tile loses it";
        }
        return std::nullopt;
    });
    ASSERT_TRUE(dock.updateDockEntry(kID, kWrapper));

    EXPECT_EQ(preferences(), expected(kWrapper, 1, *mac.mac.bookmarks.make(kWrapper)));
    EXPECT_TRUE(textOf(content(kPlist)).starts_with("bplist00"));
    EXPECT_EQ(content(kBackup), before);
    EXPECT_EQ(writes, 1);
}

TEST_F(DockManagerTest, KeepsTheVeryFirstBookmarkAndPutsItBack) {
    const Bytes first = *mac.mac.bookmarks.make(kAtlas);
    ASSERT_TRUE(dock.updateDockEntry(kID, kWrapper));
    ASSERT_TRUE(dock.updateDockEntry(kID, kWrapper));
    ASSERT_TRUE(settings.getDockBookmark(kID));
    EXPECT_EQ(settings.getDockBookmark(kID)->bookmark, first);

    ASSERT_TRUE(dock.restoreDockEntry(kID));
    Value wanted = expected(kAtlas, 3, first);
    *(*wanted.find("persistent-apps")->as<Array>())[4].find("tile-data")->find("file-mod-date") = Dictionary{};
    EXPECT_EQ(preferences(), wanted);
    EXPECT_FALSE(settings.getDockBookmark(kID));
    EXPECT_FALSE(dock.restoreDockEntry(kID));
    EXPECT_TRUE(log.has("No original bookmark found for " + kID));
}

TEST_F(DockManagerTest, PointsATileAtTheOriginalByForceAndNeverSavesAWrappersBookmark) {
    ASSERT_TRUE(dock.updateDockEntry(kID, kWrapper));
    settings.removeDockBookmark(kID);
    ASSERT_TRUE(dock.updateDockEntry(kID, kWrapper));
    EXPECT_FALSE(settings.getDockBookmark(kID));
    ASSERT_TRUE(dock.forceRestoreDockEntry(kID, kAtlas));
    EXPECT_EQ(preferences(), expected(kAtlas, 3, *mac.mac.bookmarks.make(kAtlas)));
}

TEST_F(DockManagerTest, LeavesThePreferencesAloneWhenAnythingFails) {
    struct Case {
        std::string line;
        std::function<void()> arrange;
        MacPath target = kWrapper;
        std::string bundleID = kID;
    };

    const auto fail = [&](const char* operation, const MacPath& path) {
        return [this, operation, path] { mac.files.failOn(operation, path, EIO); };
    };
    const MacPath nothing("/Applications/Nothing.app");
    const std::vector<Case> cases{
        {"ERROR: Tavrik app doesn't exist at " + nothing.string(), [] {}, nothing},
        {"App org.example.other not found in Dock", [] {}, kWrapper, "org.example.other"},
        {"Failed to read Dock plist", fail("read", kPlist)},
        {"No persistent-apps found in Dock plist",
         [&] { writePreferences(Dictionary{{"persistent-apps", 3}}); }},
        {"Failed to read Dock plist: the file holds no dictionary", [&] { writePreferences(Array{}); }},
        {"ERROR: Failed to save original Dock bookmark for " + kID, fail("replace", {})},
        {"Updated Dock entry for " + kID + " to use tavrik app", fail("write", kPlist)},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.line);
        writePreferences(sample());
        each.arrange();
        const Bytes before = content(kPlist);
        log.clear();
        EXPECT_FALSE(dock.updateDockEntry(each.bundleID, each.target));
        EXPECT_FALSE(dock.forceRestoreDockEntry(kID, nothing));
        EXPECT_TRUE(log.has(each.line));
        EXPECT_EQ(content(kPlist), before);
        mac.files.failNothing();
    }
    EXPECT_TRUE(log.mentions("Failed to write Dock plist: "));
    EXPECT_TRUE(settings.getDockBookmark(kID)) << "kept, so that a later restore can run";
}

TEST_F(DockManagerTest, NeverReplacesAGoodBackupByADamagedFile) {
    dock.backupDockPlist();
    const Bytes good = content(kBackup);
    ASSERT_TRUE(mac.mac.files.write(kPlist, ByteView(good).first(good.size() / 2)));
    dock.backupDockPlist();
    EXPECT_EQ(content(kBackup), good);
    EXPECT_TRUE(log.mentions("Failed to backup Dock plist: "));

    writePreferences(sample());
    for (const char* operation : {"create", "replace", "read"}) {
        mac.files.failOn(operation, {}, EIO);
        dock.backupDockPlist();
        mac.files.failNothing();
        EXPECT_EQ(content(kBackup), good) << operation;
    }
    EXPECT_THAT(*mac.mac.files.list(kPlist.parent()), UnorderedElementsAre(kPlist.name(), kBackup.name()));
}

TEST_F(DockManagerTest, ListsTheTilesThatAreApplications) {
    EXPECT_THAT(dock.dockApps(), testing::ElementsAre(DockApp{kID, kAtlas}, DockApp{kID, kAtlas}));
    EXPECT_FALSE(dock.isAppInDock("org.example.other"));
    ASSERT_TRUE(mac.mac.files.remove(kAtlas));
    EXPECT_EQ(dock.dockApps().front(), (DockApp{kID, MacPath()}));
    ASSERT_TRUE(mac.mac.files.remove(kPlist));
    EXPECT_THAT(dock.dockApps(), IsEmpty());
}

} // namespace tavrik::test
