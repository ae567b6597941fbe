#include "system/DockManager.h"

#include "model/SettingsManager.h"
#include "platform/Bookmarks.h"
#include "platform/PathRules.h"
#include "platform/practice/Layout.h"
#include "practice/session/VirtualSession.h"
#include "support/LogRecorder.h"
#include "support/SmallMac.h"
#include "system/LaunchpadManager.h"

#include <gmock/gmock.h>

#include <cerrno>

namespace tavrik::test {

namespace {

using namespace plist;
using testing::ElementsAre;

const MacPath kPlist = dockPreferencesPath(practice::kHome);
const MacPath kBackup = dockPreferencesBackupPath(practice::kHome);
const MacPath kAtlas{"/Applications/Atlas.app"};
const MacPath kWrapper = wrapperFolder(practice::kHome) / "Atlas.app";
const std::string kID = "org.example.atlas";

Value tile(Dictionary data) {
    return Dictionary{{"GUID", 4266038770}, {"tile-data", std::move(data)}, {"tile-type", "file-tile"}};
}

struct DockManagerTest : testing::Test {
    DockManagerTest() {
        for (const MacPath& folder : {kAtlas, kWrapper, kPlist.parent()})
            EXPECT_TRUE(mac.files.createFolder(folder));
        writePreferences(sample());
    }

    Bytes bookmark(const MacPath& bundle) { return *mac.mac.bookmarks.make(bundle); }

    /// Everything odd that real files have, in front of the tile that is looked for.
    Value sample(const MacPath& target = kAtlas, int writes = 0, const Value& date = Dictionary{}) {
        return Dictionary{
            {"mod-count", 41 + writes},
            {"persistent-others", Array{tile({{"bundle-identifier", kID}})}},
            {"persistent-apps",
             Array{Value("no tile"), tile({{"file-label", ""}}), Dictionary{{"tile-data", 7.5}},
                   tile({{"bundle-identifier", Dictionary{}}, {"book", 3}}),
                   tile({{"bundle-identifier", kID},
                         {"book", bookmark(target)},
                         {"file-data", Dictionary{{"_CFURLString", "file://" + target.string() + "/"}}},
                         {"file-mod-date", date},
                         {"file-label", "Atlas"}}),
                   tile({{"bundle-identifier", kID}, {"book", bookmark(kAtlas)}})}}};
    }

    Value dateOf(const MacPath& bundle) {
        return static_cast<std::int64_t>(mac.mac.files.attributes(bundle)->modified.sinceReference);
    }

    void writePreferences(const Value& preferences) {
        ASSERT_TRUE(mac.practice.mac().files.write(kPlist, *plist::serialize(preferences, plist::Format::xml)));
    }

    Bytes content(const MacPath& file) { return *mac.practice.mac().files.read(file); }

    Value preferences() { return *plist::parse(content(kPlist)); }

    SmallMac mac;
    SettingsManager settings{mac.mac};
    DockManager dock{mac.mac, settings};
    LogRecorder log;
};

} // namespace

TEST_F(DockManagerTest, RepointsTheFirstMatchingTileAndPutsItBackAndNothingElse) {
    const Bytes before = content(kPlist);
    ASSERT_TRUE(dock.updateDockEntry(kID, kWrapper));
    EXPECT_EQ(preferences(), sample(kWrapper, 1, dateOf(kWrapper)));
    EXPECT_THAT(dock.dockApps(), ElementsAre(DockApp{kID, kWrapper}, DockApp{kID, kAtlas}));
    EXPECT_TRUE(textOf(content(kPlist)).starts_with("bplist00"));
    EXPECT_EQ(content(kBackup), before);
    EXPECT_THAT(mac.files.journal(), testing::Contains("write " + kPlist.string()).Times(1));

    ASSERT_TRUE(dock.updateDockEntry(kID, kWrapper));
    ASSERT_TRUE(settings.getDockBookmark(kID));
    EXPECT_EQ(settings.getDockBookmark(kID)->bookmark, bookmark(kAtlas));
    ASSERT_TRUE(dock.restoreDockEntry(kID));
    EXPECT_EQ(preferences(), sample(kAtlas, 3));
    EXPECT_FALSE(settings.getDockBookmark(kID));
    EXPECT_FALSE(dock.restoreDockEntry(kID));
    EXPECT_TRUE(log.has("No original bookmark found for " + kID));

    writePreferences(sample(kWrapper));
    ASSERT_TRUE(dock.updateDockEntry(kID, kWrapper));
    EXPECT_FALSE(settings.getDockBookmark(kID)) << "a wrapper's is never saved";
    ASSERT_TRUE(dock.forceRestoreDockEntry(kID, kAtlas));
    EXPECT_EQ(preferences(), sample(kAtlas, 2, dateOf(kAtlas)));
}

TEST_F(DockManagerTest, LeavesThePreferencesAloneWhenAnythingFails) {
    const MacPath nothing("/Applications/Nothing.app");
    EXPECT_FALSE(dock.updateDockEntry(kID, nothing));
    EXPECT_TRUE(log.has("ERROR: Tavrik app doesn't exist at " + nothing.string()));
    EXPECT_FALSE(dock.forceRestoreDockEntry(kID, nothing));
    EXPECT_EQ(preferences(), sample());

    // The application, the preferences, the operation that fails, and a line of the log.
    const std::tuple<std::string, Value, const char*, std::string> cases[] = {
        {"org.example.other", sample(), "", "App org.example.other not found in Dock"},
        {kID, sample(), "read", "Failed to read Dock plist"},
        {kID, Dictionary{{"persistent-apps", 3}}, "", "No persistent-apps found in Dock plist"},
        {kID, Array{}, "", "Failed to read Dock plist: the file holds no dictionary"},
        {kID, sample(), "replace", "ERROR: Failed to save original Dock bookmark for " + kID},
        {kID, sample(), "write", "Updated Dock entry for " + kID + " to use tavrik app"},
    };
    for (const auto& [id, written, operation, line] : cases) {
        writePreferences(written);
        const Bytes before = content(kPlist);
        mac.files.failOn(operation, {}, EIO);
        EXPECT_FALSE(dock.updateDockEntry(id, kWrapper));
        mac.files.failNothing();
        EXPECT_TRUE(log.has(line)) << line;
        EXPECT_EQ(content(kPlist), before) << line;
        EXPECT_EQ(log.mentions("Failed to write Dock plist: "), operation == std::string("write"));
        log.clear();
    }
    EXPECT_TRUE(settings.getDockBookmark(kID)) << "kept, so that a later restore can run";
}

TEST_F(DockManagerTest, NeverReplacesAGoodBackupByADamagedFile) {
    dock.backupDockPlist();
    const Bytes good = content(kBackup);
    ASSERT_TRUE(mac.mac.files.write(kPlist, ByteView(good).first(good.size() / 2)));
    dock.backupDockPlist();
    EXPECT_EQ(content(kBackup), good);
    EXPECT_TRUE(log.mentions("Failed to backup Dock plist: "));

    writePreferences(Dictionary{});
    for (const char* operation : {"create", "replace", "read"}) {
        mac.files.failOn(operation, {}, EIO);
        dock.backupDockPlist();
        mac.files.failNothing();
        EXPECT_EQ(content(kBackup), good) << operation;
    }
    EXPECT_THAT(*mac.mac.files.list(kPlist.parent()),
                testing::UnorderedElementsAre(kPlist.name(), kBackup.name()));
}

TEST_F(DockManagerTest, ListsNoTargetForATileThatLeadsNowhereAndNoTileWithoutPreferences) {
    ASSERT_TRUE(mac.mac.files.remove(kAtlas));
    EXPECT_EQ(dock.dockApps().front(), (DockApp{kID, MacPath()}));
    ASSERT_TRUE(mac.mac.files.remove(kPlist));
    EXPECT_THAT(dock.dockApps(), ElementsAre());
}

TEST_F(DockManagerTest, SyncsThePreferencesBeforeItKillsTheDockEvenWhenNoToolCanBeStarted) {
    using namespace std::chrono_literals;
    practice::VirtualSession session(mac.folder.path(), mac.clock);
    practice::PracticeMac practice(mac.folder.path(), {.clock = &mac.clock, .tools = &session});
    DockManager synced(practice.mac(), settings);
    LaunchpadManager(practice.mac(), synced).restartDock();
    EXPECT_EQ(textOf(content(practice::kToolJournal)),
              "800000000.000\t/usr/bin/touch\t" + kPlist.string() +
                  "\n800000000.100\t/usr/bin/defaults\twrite\tcom.apple.dock\tRecentlyUsedApps\t-bool\ttrue\n"
                  "800000000.400\t/usr/bin/killall\tDock\n");
    EXPECT_EQ(textOf(content(practice::kNotificationJournal)),
              "800000000.000\tcom.apple.dock.prefchanged\n800000000.000\tcom.apple.dock.refreshItems\n"
              "800000000.200\tcom.apple.dock.prefchanged\n800000000.200\tcom.apple.dock.refreshItems\n");

    mac.clock.forgetWaits();
    LaunchpadManager(mac.mac, dock).restartDock();
    EXPECT_THAT(mac.clock.waits(), ElementsAre(100ms, 100ms, 200ms));
}

} // namespace tavrik::test
