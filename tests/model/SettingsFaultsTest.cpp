#include "model/SettingsManager.h"
#include "support/LogRecorder.h"
#include "support/SmallMac.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <set>

namespace tavrik {
namespace {

using test::Times;

class SettingsFaultsTest : public testing::Test {
protected:
    /// What the next start finds.
    std::int64_t countAfterRestart() {
        small.files.failNothing();
        return SettingsManager(small.mac).getBackupRetentionCount();
    }

    test::SmallMac small;
    test::LogRecorder log;
    SettingsManager settings{small.mac};
    const MacPath main = settings.appSupportURL() / "AppSettings.plist";
};

TEST_F(SettingsFaultsTest, LeavesOldOrNewContentWhateverFails) {
    settings.setBackupRetentionCount(1);
    small.files.forget();
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
                if (times == Times::once) {
                    EXPECT_THAT(
                        *small.files.list(main.parent()),
                        testing::Each(testing::AnyOf("AppSettings.plist", "AppSettings.backup", "IconCache")));
                }
            }
        }
    }
}

TEST_F(SettingsFaultsTest, KeepsTheBestThatIsOnDiskAndTellsOfTheFailure) {
    struct Case {
        std::set<std::string> failing;
        bool isMainDamaged;
        std::int64_t kept;
    };

    for (const auto& [failing, isMainDamaged, kept] : {
             Case{{"create AppSettings.tmp"}, false, 2},
             Case{{"replace AppSettings.plist"}, false, 2},
             Case{{"create AppSettings.tmp", "remove AppSettings.backup"}, false, 2},
             Case{{"read AppSettings.plist"}, false, 2},
             Case{{"create", "write"}, true, 1},
         }) {
        SCOPED_TRACE(*failing.begin());
        settings.setBackupRetentionCount(1);
        settings.setBackupRetentionCount(2);
        if (isMainDamaged)
            ignoreFailure(small.files.write(main, bytesOf("cut")));
        small.files.setRule([&](const test::FileOperation& operation) -> std::optional<int> {
            const bool fails = failing.contains(operation.name) ||
                               failing.contains(operation.name + " " + operation.path.name());
            return fails ? std::optional(ENOSPC) : std::nullopt;
        });
        log.clear();
        settings.setBackupRetentionCount(3);
        EXPECT_TRUE(log.mentions("Failed to save settings: "));
        EXPECT_EQ(countAfterRestart(), kept);
    }
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
    small.files.failOn("createFolder", {}, EROFS);
    SettingsManager settings(small.mac);
    settings.setBackupRetentionCount(3);
    EXPECT_EQ(settings.getBackupRetentionCount(), 30);
}

} // namespace
} // namespace tavrik
