#include "Application.h"
#include "app/Managers.h"
#include "icons/IconFiles.h"
#include "platform/Icns.h"
#include "platform/Png.h"
#include "support/LogRecorder.h"
#include "support/practice/VirtualMac.h"
#include "system/IconManager.h"
#include "themes/ThemeManager.h"

#include <gmock/gmock.h>

#include <cerrno>

namespace tavrik::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string kAtlas = "org.example.atlas";
const std::string kBeacon = "com.example.lumen.beacon";
const std::string kChess = "com.apple.Chess";

QImage picture(const QColor& colour, int side = 64) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(colour);
    return image;
}

class ThemeApplying : public testing::Test, protected Application {
protected:
    ThemeApplying() { managers().themes.open(); }

    Managers& managers() { return *m_managers; }

    void restart() {
        m_managers.emplace(mac.mac);
        managers().themes.open();
    }

    Theme themeOf(const std::map<std::string, Bytes>& icons) {
        return *managers().themes.createTheme("Tide " + std::to_string(++m_count), icons);
    }

    /// The colour of the icon that the row chooses; nothing when it is the application's own.
    QColor chosen(const std::string& bundleID) {
        const IconRow row = managers().pendingChanges.iconRow(bundleID);
        if (row.selectedIconIndex < 0)
            return {};
        const auto content = mac.files.read(
            row.displayPaths().at(static_cast<std::size_t>(row.selectedIconIndex)), FileManager::kLargestRead);
        const QImage image = png::decode(*content);
        EXPECT_EQ(image.size(), QSize(1024, 1024));
        return image.pixelColor(512, 512);
    }

    std::size_t shown(const std::string& bundleID) {
        return managers().pendingChanges.iconRow(bundleID).displayPaths().size();
    }

    static Bytes pngOf(const QColor& colour) { return *png::encode(picture(colour)); }

    LogRecorder log;
    VirtualMac mac;

private:
    std::optional<Managers> m_managers{mac.mac};
    int m_count = 0;
};

TEST_F(ThemeApplying, StagesWhatIsNotHiddenAndLeavesTheRestAlone) {
    const Bytes blue = icns::encode(picture(Qt::blue));
    const Theme theme = themeOf({{kAtlas + ".png", pngOf(Qt::red)},
                                 {kAtlas + ".icns", blue},
                                 {kBeacon + ".icns", blue},
                                 {kChess + ".png", pngOf(Qt::red)},
                                 {kChess + ".icns", blue},
                                 {"com.apple.mail.png", pngOf(Qt::red)},
                                 {"com.apple.Maps.png", pngOf(Qt::red)},
                                 {"com.apple.Music.png", Bytes(40, std::uint8_t{7})},
                                 {"com.example.pocket-tides.png", pngOf(Qt::red)},
                                 {"com.apple.iCal.png", pngOf(Qt::red)},
                                 {"com.example.absent.png", pngOf(Qt::red)}});
    ASSERT_TRUE(managers().hiddenThemeIcons.hide(theme.themeID, kChess + ".png"));
    managers().pendingChanges.hideThemeIcon(theme.themeID, "com.apple.mail.png");
    managers().pendingChanges.deleteThemeIcon(theme.themeID, "com.apple.Maps.png");
    log.clear();

    const ThemeApplication answer = managers().themes.applyTheme(theme);
    EXPECT_EQ(answer.applied, 3U);
    EXPECT_THAT(answer.failed, ElementsAre(HasSubstr("com.apple.Music.png")));
    EXPECT_EQ(answer.leftAlone.size(), 2U);
    EXPECT_EQ(chosen(kAtlas), QColor(Qt::red)) << "of both formats the PNG";
    EXPECT_EQ(chosen(kBeacon), QColor(Qt::blue));
    EXPECT_EQ(chosen(kChess), QColor(Qt::blue)) << "the PNG is hidden";
    EXPECT_EQ(managers().pendingChanges.staged().pendingChanges.size(), 3U);
    EXPECT_EQ(log.count("📝 savePendingChangesToTempFile called"), 1U);
    EXPECT_TRUE(log.has("Applying theme: Tide 1 (ID: " + theme.themeID + ")"));
    EXPECT_TRUE(log.has("Theme application complete. Applied 3 icons."));
    EXPECT_FALSE(managers().themes.isApplyingTheme());

    restart();
    ASSERT_TRUE(managers().pendingChanges.recover());
    EXPECT_EQ(chosen(kBeacon), QColor(Qt::blue));
    managers().pendingChanges.deleteTheme(theme.themeID);
    EXPECT_THAT(managers().themes.applyTheme(theme).failed, ElementsAre(HasSubstr("is to be deleted")));
}

TEST_F(ThemeApplying, ChoosesAgainWhatTheRowHasAlready) {
    const Theme red = themeOf({{kAtlas + ".png", pngOf(Qt::red)}});
    const Theme blue = themeOf({{kAtlas + ".png", *png::encode(*IconManager::squareIcon(picture(Qt::blue)))}});
    for (const auto& [theme, colour, count] : {std::tuple{red, Qt::red, 1U},
                                               {red, Qt::red, 1U},
                                               {blue, Qt::blue, 2U},
                                               {red, Qt::red, 2U},
                                               {blue, Qt::blue, 2U}}) {
        EXPECT_EQ(managers().themes.applyTheme(theme).applied, 1U);
        EXPECT_EQ(chosen(kAtlas), QColor(colour));
        EXPECT_EQ(shown(kAtlas), count);
    }
    EXPECT_EQ(managers().iconStore.listPendingIcons(kAtlas).size(), 2U);
}

TEST_F(ThemeApplying, AFullDiskCostsTheIconsItHasNoRoomForAndNothingElse) {
    const Theme theme = themeOf({{kAtlas + ".png", pngOf(Qt::red)}, {kBeacon + ".png", pngOf(Qt::blue)}});
    const MacPath unlucky = managers().pendingChanges.pendingIconsBaseURL() / kAtlas / iconFileName(0);
    mac.files.setRule([&](const FileOperation& operation) {
        return operation.path.isInside(unlucky.parent()) && operation.name == "create" ? std::optional(ENOSPC)
                                                                                       : std::nullopt;
    });
    const ThemeApplication answer = managers().themes.applyTheme(theme);
    EXPECT_EQ(answer.applied, 1U);
    EXPECT_THAT(answer.failed, ElementsAre(HasSubstr("Atlas")));
    EXPECT_EQ(chosen(kBeacon), QColor(Qt::blue));

    // A kill before the staging leaves files that nothing names, and the next recovery removes them.
    mac.files.failNothing();
    mac.files.failOn("replace", managers().pendingChanges.tempFileURL(), EIO);
    EXPECT_EQ(managers().themes.applyTheme(theme).applied, 2U);
    mac.files.failNothing();
    restart();
    ASSERT_TRUE(managers().pendingChanges.recover());
    EXPECT_THAT(managers().iconStore.listPendingIcons(kAtlas), IsEmpty());
    EXPECT_EQ(chosen(kBeacon), QColor(Qt::blue));
}

} // namespace
} // namespace tavrik::test
