#include "model/catalogue/Catalogue.h"
#include "platform/Workspace.h"
#include "system/LaunchpadSample.h"

#include <QColorSpace>

namespace tavrik::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

using AppManagerTest = LaunchpadSample;
using WrapperDoor = WrapperStage;

QImage picture(QSize size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(200, 100, 50));
    image.setColorSpace(QColorSpace::AdobeRgb); // a conversion shows, since it goes to sRGB
    return image;
}

TEST_F(AppManagerTest, ListsApplicationsWithIconsThatWaitToBeLookedAt) {
    addApp(1, "Atlas", "com.example.atlas", 0, MacPath("/Applications/Atlas.app"));
    Program program(small.mac);
    Catalogue catalogue(program);
    const auto applications = catalogue.apps.loadApplications();
    ASSERT_EQ(applications.size(), 1u);
    EXPECT_THAT(small.files.journal(), Not(Contains(HasSubstr(".icns"))));
    EXPECT_FALSE(applications.front().icon.image().isNull());
    EXPECT_THAT(small.files.journal(), Contains(HasSubstr(".icns")));

    // What others write into the settings after the load is seen: its cache is gone.
    const auto other =
        bytesOf("<plist><dict><key>BackupRetentionCount</key><integer>9</integer></dict></plist>");
    ASSERT_TRUE(small.files.write(program.settings.appSupportURL() / "AppSettings.plist", other));
    EXPECT_EQ(program.settings.getBackupRetentionCount(), 9);
}

TEST_F(WrapperDoor, RefusesIOSAppsAndChangesNothing) {
    ASSERT_TRUE(wrappers().createWrapper(atlas, redIcon()));
    Catalogue catalogue(*program);
    ApplicationInfo app = atlas;
    app.isIOSApp = true;
    const auto before = treeOf(volume.root());
    log.clear();
    EXPECT_FALSE(catalogue.apps.updateWrapperIcon(app, redIcon()));
    EXPECT_FALSE(catalogue.apps.removeWrapper(app, RestartDock::yes));
    EXPECT_THAT(log.lines(), ElementsAre("Cannot update tavrik app icon for iOS app: Atlas",
                                         "Cannot remove tavrik app for iOS app: Atlas"));
    EXPECT_THAT(differences(before, treeOf(volume.root())), ElementsAre());
}

TEST_F(WrapperDoor, SquaresAnIconUnlessItHasTheRightSize) {
    ASSERT_TRUE(wrappers().createWrapper(atlas, redIcon()));
    Catalogue catalogue(*program);
    const auto colour = [&] { return mac.workspace.icon(wrapperOf(atlas)).pixelColor(300, 512); };

    EXPECT_TRUE(catalogue.apps.updateWrapperIcon(atlas, picture({1024, 1024})));
    EXPECT_EQ(colour(), QColor(200, 100, 50));
    EXPECT_TRUE(catalogue.apps.updateWrapperIcon(atlas, picture({1024, 1023})));
    EXPECT_EQ(colour(), IconManager::squareIcon(picture({1024, 1024}))->pixelColor(300, 512));
    EXPECT_NE(colour(), QColor(200, 100, 50));

    log.clear();
    EXPECT_FALSE(catalogue.apps.updateWrapperIcon(atlas, QImage()));
    EXPECT_THAT(log.lines(), ElementsAre("Failed to convert icon to 1024x1024 for tavrik app update"));

    EXPECT_TRUE(catalogue.apps.removeWrapper(atlas, RestartDock::yes));
    expectUntouched(atlas);
}

TEST_F(WrapperDoor, RefreshesTheMappedAppsAlone) {
    ASSERT_TRUE(wrappers().createWrapper(atlas, redIcon()));
    Catalogue catalogue(*program);
    EXPECT_TRUE(wrappers().batchCreateWrapper(tips, redIcon()));
    log.clear();
    catalogue.apps.refreshAllWrapperApps();
    EXPECT_EQ(log.count("Ensuring icon sync for org.example.atlas"), 1u);
    EXPECT_FALSE(log.has("Ensuring icon sync for com.apple.tips"));
}

} // namespace
} // namespace tavrik::test
