#include "model/catalogue/AppManager.h"

#include "model/SettingsManager.h"
#include "model/UnsupportedAppsManager.h"
#include "platform/practice/PracticeMac.h"
#include "support/FailingFileManager.h"
#include "support/practice/PracticeVolume.h"
#include "system/DatabaseManager.h"
#include "system/IconManager.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace tavrik {
namespace {

TEST(AppManager, ListsAFurnishedMacByNameWithIconsThatWaitToBeLookedAt) {
    const test::PracticeVolume volume;
    practice::PracticeMac practice(volume.root());
    test::FailingFileManager files(practice.mac().files);
    const Mac& own = practice.mac();
    Mac mac{own.volume,   files,       own.bookmarks, own.workspace, own.tools, own.notifications,
            own.defaults, own.machine, own.clock,     own.alerts,    own.random};
    SettingsManager settings(mac);
    const UnsupportedAppsManager unsupported;
    IconManager icons(mac);
    DatabaseManager database(mac, settings, icons, unsupported);
    const auto applications = AppManager(database, settings).loadApplications();

    std::set<std::string> identifiers;
    for (const ApplicationInfo& app : applications)
        EXPECT_TRUE(identifiers.insert(app.bundleID).second) << app.bundleID;
    for (const test::LaunchpadItem& item : volume.launchpadItems()) {
        const bool isListed =
            item.flags && ((*item.flags & kHiddenFlag) == 0 || item.bundleID.starts_with("com.apple."));
        // As stored, an identifier may have blanks around it.
        const auto isItem = [&](const std::string& identifier) {
            return item.bundleID.find(identifier) != std::string::npos;
        };
        if (item.type == 4 && isListed && practice.mac().files.exists(item.path)) {
            EXPECT_TRUE(std::ranges::any_of(identifiers, isItem)) << item.title;
        }
    }
    ASSERT_GT(applications.size(), 20u);
    EXPECT_THAT(files.journal(), testing::Not(testing::Contains(testing::HasSubstr(".icns"))));
    EXPECT_FALSE(applications.front().icon.image().isNull());
    EXPECT_THAT(files.journal(), testing::Contains(testing::HasSubstr(".icns")));

    // What others write into the settings after the load is seen: its cache is gone.
    const MacPath file = settings.appSupportURL() / "AppSettings.plist";
    ignoreFailure(
        mac.files.write(file, bytesOf("<plist><dict><key>BackupRetentionCount</key><integer>9</integer>"
                                      "</dict></plist>")));
    EXPECT_EQ(settings.getBackupRetentionCount(), 9);
}

} // namespace
} // namespace tavrik
