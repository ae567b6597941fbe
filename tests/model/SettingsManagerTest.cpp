#include "model/SettingsManager.h"

#include "support/FileTree.h"
#include "support/LogRecorder.h"
#include "support/SmallMac.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <set>
#include <thread>

namespace tavrik {
namespace {

using test::Times;
using testing::AnyOf;
using testing::Each;
using testing::ElementsAre;

class SettingsManagerTest : public testing::Test {
protected:
    void writeMain(const std::string& text) { ignoreFailure(small.files.write(main, bytesOf(text))); }

    plist::Value onDisk(const MacPath& file) { return *plist::parse(*small.mac.files.read(file)); }

    static std::string xml(const std::string& content) {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + content + "</plist>\n";
    }

    /// What the next start finds.
    std::int64_t countAfterRestart() {
        small.files.failNothing();
        return SettingsManager(small.mac).getBackupRetentionCount();
    }

    test::SmallMac small;
    test::LogRecorder log;
    SettingsManager settings{small.mac};
    const MacPath main = settings.appSupportURL() / "AppSettings.plist";
    const MacPath backup = settings.appSupportURL() / "AppSettings.backup";
};

TEST_F(SettingsManagerTest, StartsWithNothingAndMakesNoBackupOfNothing) {
    EXPECT_EQ(settings.getBackupRetentionCount(), 30);
    EXPECT_THAT(log.lines(), ElementsAre("WARNING: Main settings file failed to load, trying backup",
                                         "WARNING: No valid settings found, returning empty"));
    settings.setCurrentFontState(std::nullopt);
    EXPECT_TRUE(log.has("WARNING: Attempting to save empty settings - aborting to prevent data loss"));
    EXPECT_FALSE(small.files.exists(main));
    settings.setBackupRetentionCount(7);
    EXPECT_FALSE(small.files.exists(backup));
    settings.setBackupRetentionCount(8);
    EXPECT_EQ(onDisk(backup), plist::Value(plist::Dictionary{{"BackupRetentionCount", 7}}));
    EXPECT_EQ(small.mac.files.attributes(main)->permissions, 0600u);
    EXPECT_EQ(small.mac.files.attributes(settings.iconCacheURL())->permissions, 0700u);
}

TEST_F(SettingsManagerTest, PutsTheBackupInThePlaceOfABadMainFile) {
    const std::string good = xml("<dict><key>BackupRetentionCount</key><integer>5</integer></dict>");
    for (const std::string& bad : {std::string(), std::string("no list"), xml("<dict/>"), xml("<array/>"),
                                   good.substr(0, good.size() / 2)}) {
        ignoreFailure(small.files.write(backup, bytesOf(good)));
        writeMain(bad);
        log.clear();
        settings.dropCache();
        EXPECT_EQ(settings.getBackupRetentionCount(), 5) << bad;
        EXPECT_THAT(log.lines(), ElementsAre("WARNING: Main settings file failed to load, trying backup",
                                             "Restored settings from backup"));
        EXPECT_EQ(textOf(*small.mac.files.read(main)), good);
    }
}

TEST_F(SettingsManagerTest, KeepsForeignKeysAndEditsMadeByHand) {
    settings.setSelectedIcon("com.example.atlas", 2);
    writeMain(
        xml("<dict><key>Foreign</key><array><real>1.5</real></array>"
            "<key>SelectedIcons</key><dict><key>com.example.brio</key><integer>4</integer></dict></dict>"));
    settings.setSelectedIcon("com.example.atlas", 3);
    EXPECT_EQ(settings.getSelectedIcon("com.example.brio"), 4);
    settings.setSelectedIcon("com.example.atlas", std::nullopt);
    settings.setSelectedIcon("com.example.brio", std::nullopt);
    EXPECT_EQ(onDisk(main), plist::Value(plist::Dictionary{{"Foreign", plist::Array{1.5}},
                                                           {"SelectedIcons", plist::Dictionary{}}}));
}

TEST_F(SettingsManagerTest, RemembersWhatTitlesShowUntilAChangeOfFontEnds) {
    const auto begin = [&](const char* name) { return settings.beginFontChange(FontState{name, true, {}}); };
    EXPECT_TRUE(begin("One"));
    EXPECT_EQ(settings.getCurrentFontState(), (FontState{"One", true, small.clock.now()}));
    settings.endFontChange();
    EXPECT_TRUE(begin("Two") && settings.beginFontChange(std::nullopt) && begin("One") && begin("Three"));
    EXPECT_THAT(settings.getUnfinishedFontChange(), ElementsAre("One", "Two", ""));
    EXPECT_EQ(settings.getCurrentFontState()->fontName, "Three");

    // Even where nothing else is in the file.
    EXPECT_TRUE(settings.beginFontChange(std::nullopt));
    settings.endFontChange();
    EXPECT_TRUE(settings.getUnfinishedFontChange().empty());
    EXPECT_FALSE(settings.getCurrentFontState());
}

TEST_F(SettingsManagerTest, MergesFolderBackups) {
    const RowID folder{-7};
    const Date first = small.clock.now();
    settings.saveFolderBackup(folder, "Games", "Games", "Fraktur");
    small.clock.sleep(std::chrono::seconds(5));
    settings.saveFolderBackup(folder, std::nullopt, "X", std::nullopt);
    settings.saveFolderBackup(folder, std::nullopt, std::nullopt, "Ignored");
    FolderBackup expected{"Games", first, "X", small.clock.now(), "Fraktur"};
    EXPECT_EQ(settings.getFolderBackup(folder), expected);

    small.files.forget();
    EXPECT_TRUE(
        settings.saveFolderBackups({{folder, {{}, {}, "Y", {}, {}}}, {RowID{8}, {"B", {}, "B", {}, {}}}}));
    settings.removeFolderBackups({RowID{8}, RowID{9}});
    expected.lastGood = "Y";
    EXPECT_THAT(settings.getAllFolderBackups(), ElementsAre(std::pair(folder, expected)));
    const auto journal = small.files.journal();
    EXPECT_EQ(std::ranges::count_if(journal, [](const auto& line) { return line.starts_with("replace"); }), 2)
        << "one write for all";
}

TEST_F(SettingsManagerTest, ReadsAWrongTypeAsNone) {
    writeMain(
        xml("<dict><key>BackupRetentionCount</key><string>12</string>"
            "<key>SelectedIcons</key><dict><key>a</key><true/></dict>"
            "<key>CurrentFontState</key><dict><key>fontName</key><string>Bold</string></dict>"
            "<key>TavrikMappings</key><dict><key>a</key><dict><key>originalRowID</key><real>1</real></dict>"
            "<key>b</key><string>x</string></dict>"
            "<key>FolderBackups</key><dict><key>12a</key><dict/><key>13</key><integer>1</integer></dict>"
            "<key>HiddenFlagApps</key><array/>"
            "<key>SwapRecords</key><dict><key>a</key><dict/></dict></dict>"));
    EXPECT_EQ(settings.getBackupRetentionCount(), 30);
    EXPECT_FALSE(settings.getSelectedIcon("a") || settings.getCurrentFontState());
    EXPECT_TRUE(settings.getAllMappings().empty() && settings.getAllFolderBackups().empty() &&
                settings.getAllSwapRecords().empty());
    settings.saveHiddenFlagApp("com.apple.a", 128, RowID{1}, std::nullopt, true);
    EXPECT_EQ(settings.getAllHiddenFlagApps().size(), 1u);
}

TEST_F(SettingsManagerTest, BringsEveryRecordBackAsItWasSaved) {
    const std::string atlas = "com.example.atlas";
    const DockBookmark bookmark{atlas, {0, 1, 255}, false, plist::Value(20495065241267)};
    const SwapRecord record{RowID{1}, {std::nullopt, RowID{2}, -3}, RowID{4}, {128, RowID{5}, 6}};
    settings.saveDockBookmark(bookmark);
    settings.saveMapping(atlas, RowID{1LL << 40}, RowID{-3});
    settings.saveHiddenFlagApp(atlas, 0x80000080, RowID{4}, RowID{5}, false);
    EXPECT_TRUE(settings.saveSwapRecord(atlas, record));

    SettingsManager again(small.mac);
    again.preloadSettings();
    small.files.forget();
    const Date now = small.clock.now();
    EXPECT_EQ(again.getDockBookmark(atlas), bookmark);
    EXPECT_EQ(again.getMapping(atlas), (TavrikMapping{RowID{1LL << 40}, RowID{-3}, now}));
    EXPECT_EQ(again.getHiddenFlagApp(atlas), (HiddenFlagApp{0x80000080, RowID{4}, RowID{5}, false, now}));
    EXPECT_EQ(again.getSwapRecord(atlas), record);
    EXPECT_EQ(small.files.count(), 0u) << "getters are served from memory";
    again.removeSwapRecord(atlas);
    again.removeDockBookmark(atlas);
    again.removeMapping(atlas);
    settings.dropCache();
    EXPECT_FALSE(settings.getSwapRecord(atlas) || settings.getMapping(atlas) ||
                 settings.getDockBookmark(atlas));
}

TEST_F(SettingsManagerTest, LosesNoChangeOfTwoThreads) {
    constexpr int kEach = 40;
    const auto fill = [&](const std::string& prefix) {
        for (int index = 0; index < kEach; ++index)
            settings.setSelectedIcon(prefix + std::to_string(index), index);
    };
    std::thread other(fill, "other");
    fill("own");
    other.join();
    EXPECT_EQ(onDisk(main).find<plist::Dictionary>("SelectedIcons")->size(), std::size_t{2 * kEach});
}

TEST_F(SettingsManagerTest, LeavesOldOrNewContentWhateverFails) {
    settings.setBackupRetentionCount(1);
    small.files.forget();
    settings.setBackupRetentionCount(2);
    const std::size_t operations = small.files.count();
    ASSERT_GE(operations, 6u);
    for (const Times times : {Times::once, Times::forGood}) {
        for (std::size_t number = 1; number <= operations; ++number) {
            settings.setBackupRetentionCount(2);
            small.files.failAt(number, ENOSPC, times);
            settings.setBackupRetentionCount(3);
            EXPECT_THAT(countAfterRestart(), AnyOf(2, 3)) << number;
            if (times == Times::once) {
                EXPECT_THAT(*small.files.list(main.parent()),
                            Each(AnyOf(main.name(), backup.name(), "IconCache")));
            }
        }
    }
}

TEST_F(SettingsManagerTest, KeepsTheBestThatIsOnDiskAndTellsOfTheFailure) {
    for (const std::set<std::string>& failing : std::initializer_list<std::set<std::string>>{
             {"create AppSettings.tmp"},
             {"replace AppSettings.plist"},
             {"create AppSettings.tmp", "remove AppSettings.backup"},
             {"read AppSettings.plist"},
             {"create", "write"},
         }) {
        const bool isMainDamaged = failing.contains("write");
        settings.setBackupRetentionCount(1);
        settings.setBackupRetentionCount(2);
        if (isMainDamaged)
            writeMain("cut");
        small.files.setRule([&](const test::FileOperation& operation) {
            const bool fails = failing.contains(operation.name) ||
                               failing.contains(operation.name + " " + operation.path.name());
            return fails ? std::optional(ENOSPC) : std::nullopt;
        });
        log.clear();
        settings.setBackupRetentionCount(3);
        EXPECT_TRUE(log.mentions("Failed to save settings: "));
        EXPECT_EQ(countAfterRestart(), isMainDamaged ? 1 : 2) << *failing.begin();
    }
}

TEST_F(SettingsManagerTest, SaysThatARecordIsOnDiskOnlyWhenItIs) {
    for (const char* operation : {"create", "flush", "replace", "nothing"}) {
        const bool isSaved = operation == std::string("nothing");
        small.files.failOn(operation, {}, EIO);
        EXPECT_EQ(settings.saveSwapRecord("com.example.atlas", {}), isSaved) << operation;
        EXPECT_EQ(settings.beginFontChange(FontState{"Four", true, {}}), isSaved) << operation;
        EXPECT_EQ(settings.saveFolderBackups({{RowID{1}, {"A", {}, "A", {}, {}}}}), isSaved) << operation;
    }
}

TEST_F(SettingsManagerTest, ChangesNothingWhileItMayOnlyLook) {
    settings.setBackupRetentionCount(7);
    settings.setBackupRetentionCount(8);
    writeMain("cut");
    settings.dropCache();
    const test::FileTree before = test::treeOf(small.files, settings.appSupportURL());
    settings.setReadOnly();
    EXPECT_EQ(settings.getBackupRetentionCount(), 7) << "the backup's content serves";
    EXPECT_FALSE(settings.loadSettings().empty());
    log.clear();
    settings.saveHiddenFlagApp("com.apple.a", 128, RowID{1}, std::nullopt, true);
    settings.saveSettings({{"BackupRetentionCount", 9}});
    settings.removeEntry("x", "BackupRetentionCount");
    EXPECT_FALSE(settings.saveSwapRecord("com.apple.a", {}));
    EXPECT_EQ(settings.getBackupRetentionCount(), 7);
    EXPECT_THAT(log.lines(), ElementsAre());
    EXPECT_THAT(test::differences(before, test::treeOf(small.files, settings.appSupportURL())), ElementsAre());
}

TEST(SettingsManager, WorksAsFarAsItGoesWhenItsFolderCannotBeMade) {
    test::SmallMac small;
    small.files.failOn("createFolder", {}, EROFS);
    SettingsManager settings(small.mac);
    settings.setBackupRetentionCount(3);
    EXPECT_EQ(settings.getBackupRetentionCount(), 30);
}

} // namespace
} // namespace tavrik
