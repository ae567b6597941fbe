#include "model/catalogue/AppManager.h"

#include "system/LaunchpadSample.h"

#include <gmock/gmock.h>

namespace tavrik {
namespace {

using testing::Contains;
using testing::HasSubstr;
using AppManagerTest = test::LaunchpadSample;

TEST_F(AppManagerTest, ListsApplicationsWithIconsThatWaitToBeLookedAt) {
    addApp(1, "Atlas", "com.example.atlas", 0, MacPath("/Applications/Atlas.app"));
    const auto applications = AppManager(database, settings).loadApplications();
    ASSERT_EQ(applications.size(), 1u);
    EXPECT_THAT(small.files.journal(), Not(Contains(HasSubstr(".icns"))));
    EXPECT_FALSE(applications.front().icon.image().isNull());
    EXPECT_THAT(small.files.journal(), Contains(HasSubstr(".icns")));

    // What others write into the settings after the load is seen: its cache is gone.
    const auto other =
        bytesOf("<plist><dict><key>BackupRetentionCount</key><integer>9</integer></dict></plist>");
    ASSERT_TRUE(small.files.write(settings.appSupportURL() / "AppSettings.plist", other));
    EXPECT_EQ(settings.getBackupRetentionCount(), 9);
}

} // namespace
} // namespace tavrik
