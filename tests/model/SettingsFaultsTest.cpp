#include "model/SettingsManager.h"
#include "support/LogRecorder.h"
#include "support/SmallMac.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>

namespace tavrik {
namespace {

using test::Times;

/// Settings whose main file says 2 and whose backup says 1.
class SettingsFaultsTest : public testing::Test {
protected:
    SettingsFaultsTest() {
        settings.setBackupRetentionCount(1);
        settings.setBackupRetentionCount(2);
        small.files.forget();
        log.clear();
    }

    /// What the next start finds.
    std::int64_t countAfterRestart() {
        small.files.failNothing();
        return SettingsManager(small.mac).getBackupRetentionCount();
    }

    std::vector<std::string> filesLeft() { return *small.files.list(settings.appSupportURL()); }

    test::SmallMac small;
    test::LogRecorder log;
    SettingsManager settings{small.mac};
    const MacPath main = settings.appSupportURL() / "AppSettings.plist";
    const MacPath backup = settings.appSupportURL() / "AppSettings.backup";
};

TEST_F(SettingsFaultsTest, LeavesOldOrNewContentWhateverFails) {
    settings.setBackupRetentionCount(2);
    const std::size_t operations = small.files.count();
    ASSERT_GE(operations, 6u);
    for (const int code : {EIO, ENOSPC}) {
        for (const Times times : {Times::once, Times::forGood}) {
            for (std::size_t number = 1; number <= operations; ++number) {
                settings.setBackupRetentionCount(2);
                small.files.failAt(number, code, times);
                settings.setBackupRetentionCount(3);
                EXPECT_THAT(countAfterRestart(), testing::AnyOf(2, 3)) << number << " errno " << code;
                const auto left = filesLeft();
                for (const std::string& name : left)
                    EXPECT_TRUE(name == "AppSettings.plist" || name == "AppSettings.backup" ||
                                name == "IconCache" || times == Times::forGood)
                        << name;
            }
        }
    }
}

TEST_F(SettingsFaultsTest, TellsWhatFailedAndTakesTheTemporaryAway) {
    for (const char* operation : {"create", "replace"}) {
        const MacPath file =
            settings.appSupportURL() /
            (std::string_view(operation) == "create" ? "AppSettings.tmp" : "AppSettings.plist");
        log.clear();
        small.files.failOn(operation, file, ENOSPC);
        settings.setBackupRetentionCount(3);
        EXPECT_TRUE(log.mentions("Failed to save settings: "));
        EXPECT_TRUE(log.has("Restored settings from backup"));
        EXPECT_EQ(countAfterRestart(), 2);
        EXPECT_THAT(filesLeft(),
                    testing::UnorderedElementsAre("AppSettings.backup", "AppSettings.plist", "IconCache"));
    }
}

TEST_F(SettingsFaultsTest, NeverPutsAnOlderBackupOverAGoodFile) {
    small.files.setRule([&](const test::FileOperation& operation) -> std::optional<int> {
        const bool fails = (operation.name == "remove" && operation.path == backup) ||
                           (operation.name == "create" && operation.path.name() == "AppSettings.tmp");
        return fails ? std::optional(EIO) : std::nullopt;
    });
    settings.setBackupRetentionCount(3);
    EXPECT_EQ(countAfterRestart(), 2);
}

TEST_F(SettingsFaultsTest, KeepsTheGoodBackupOfADamagedFileOnAFullDisk) {
    ignoreFailure(small.files.write(main, bytesOf("cut")));
    small.files.setRule([](const test::FileOperation& operation) -> std::optional<int> {
        return operation.name == "create" || operation.name == "write" ? std::optional(ENOSPC) : std::nullopt;
    });
    settings.setBackupRetentionCount(3);
    EXPECT_EQ(countAfterRestart(), 1);
}

TEST_F(SettingsFaultsTest, WritesNothingOverAFileThatCannotBeRead) {
    small.files.failOn("read", main, EIO);
    settings.setBackupRetentionCount(3);
    EXPECT_TRUE(log.mentions("Failed to save settings: "));
    EXPECT_EQ(countAfterRestart(), 2);
    settings.setBackupRetentionCount(4);
    EXPECT_EQ(countAfterRestart(), 4);
}

TEST_F(SettingsFaultsTest, SaysThatASwapRecordIsOnDiskOnlyWhenItIs) {
    const SwapRecord record{RowID{1}, {0, RowID{2}, 3}, RowID{4}, {128, RowID{5}, 6}};
    for (const char* operation : {"create", "flush", "replace"}) {
        small.files.failOn(operation, {}, EIO);
        EXPECT_FALSE(settings.saveSwapRecord("com.example.atlas", record)) << operation;
    }
    small.files.failNothing();
    EXPECT_TRUE(settings.saveSwapRecord("com.example.atlas", record));
}

TEST(SettingsFolders, WorkAsFarAsTheyGoWhenTheyCannotBeMade) {
    test::SmallMac small;
    test::LogRecorder log;
    small.files.failOn("createFolder", {}, EROFS);
    SettingsManager settings(small.mac);
    EXPECT_TRUE(log.mentions("Failed to create directories: "));
    settings.setBackupRetentionCount(3);
    EXPECT_TRUE(log.mentions("Failed to save settings: "));
    EXPECT_EQ(settings.getBackupRetentionCount(), 30);
}

} // namespace
} // namespace tavrik
