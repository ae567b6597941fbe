#include "platform/practice/PracticeWorkspace.h"

#include "platform/Icns.h"
#include "platform/PropertyList.h"
#include "platform/RecordingClock.h"
#include "platform/practice/CustomIcon.h"
#include "platform/practice/Layout.h"
#include "platform/practice/PracticeFileManager.h"
#include "support/TemporaryFolder.h"

#include <QBuffer>
#include <QColor>

#include <gmock/gmock.h>

namespace tavrik::practice {

namespace {

using testing::ElementsAre;

QImage filled(const QColor& color, int side = 64) {
    QImage picture(side, side, QImage::Format_ARGB32);
    picture.fill(color);
    return picture;
}

class Workspace : public testing::Test {
protected:
    Workspace() { EXPECT_TRUE(m_files.createFolder(m_app)); }

    void put(const MacPath& path, ByteView content) {
        EXPECT_TRUE(m_files.createFolder(path.parent()));
        EXPECT_TRUE(m_files.write(path, content)) << path.string();
    }

    void putPNG(const MacPath& path, const QImage& picture) {
        QBuffer buffer;
        picture.save(&buffer, "PNG");
        put(path,
            {reinterpret_cast<const std::uint8_t*>(buffer.data().constData()), std::size_t(buffer.size())});
    }

    void putInfo(const MacPath& folder, const plist::Dictionary& info) {
        put(folder / "Info.plist", *plist::serialize(info, plist::Format::xml));
    }

    QColor shown(const MacPath& path) {
        const QImage icon = m_workspace.icon(path);
        EXPECT_FALSE(icon.isNull());
        return icon.pixelColor(icon.width() / 2, icon.height() / 4);
    }

    test::TemporaryFolder m_root;
    PracticeFileManager m_files{m_root.path()};
    RecordingClock m_clock{Date{790'000'000}};
    PracticeWorkspace m_workspace{m_files, m_clock};
    MacPath m_app{"/Applications/Atlas.app"};
};

} // namespace

TEST_F(Workspace, ShowsTheCustomIconThenTheBundlesOwnThenAPlainOne) {
    const QColor plain = shown(m_app);
    putInfo(m_app / "Contents", {{"CFBundleIconFile", "App"}});
    EXPECT_EQ(shown(m_app), plain) << "the file it names is missing";
    put(m_app / "Contents/Resources/App.icns", icns::encode(filled(Qt::red)));
    EXPECT_EQ(shown(m_app), QColor(Qt::red));
    putInfo(m_app / "Contents", {{"CFBundleIconFile", "App.icns"}});
    EXPECT_EQ(shown(m_app), QColor(Qt::red)) << "with its extension";
    putInfo(m_app / "Contents", {{"CFBundleIconFile", "../../Contents/Resources/App.icns"}});
    EXPECT_EQ(shown(m_app), plain) << "a name that leads elsewhere";

    ASSERT_TRUE(m_workspace.setIcon(m_app, filled(Qt::blue)));
    EXPECT_EQ(shown(m_app), QColor(Qt::blue));
}

TEST_F(Workspace, FindsTheLargestPictureOfAnIOSApp) {
    const MacPath inner = m_app / "Wrapper/Pocket.app";
    const plist::Dictionary primary{{"CFBundleIconFiles", plist::Array{"Icon60", "Icon20"}}};
    putInfo(inner, {{"CFBundleIcons", plist::Dictionary{{"CFBundlePrimaryIcon", primary}}}});
    putPNG(inner / "Icon60@2x.png", filled(Qt::green, 120));
    putPNG(inner / "Icon20.png", filled(Qt::red, 20));
    ASSERT_TRUE(m_files.createLink(m_app / "WrappedBundle", "Wrapper/Pocket.app"));
    EXPECT_EQ(shown(m_app), QColor(Qt::green));
}

TEST_F(Workspace, SettingAnIconMovesTheFoldersDateOn) {
    ASSERT_TRUE(m_files.setModified(m_app, Date{1}));
    EXPECT_TRUE(m_workspace.clearIcon(m_app));
    EXPECT_EQ(m_files.attributes(m_app)->modified, Date{1}) << "nothing was cleared";
    ASSERT_TRUE(m_workspace.setIcon(m_app, filled(Qt::blue)));
    EXPECT_EQ(m_files.attributes(m_app)->modified, Date{790'000'000});
}

TEST_F(Workspace, EndsEveryInstanceOfARunningApplication) {
    EXPECT_TRUE(m_workspace.forceTerminate("com.example.atlas")) << "no list at all";
    const auto entry = [](const char* bundleID, const char* name) {
        return plist::Dictionary{{"bundleID", bundleID}, {"name", name}, {"other", 1}};
    };
    const plist::Array running{entry("com.example.atlas", "Atlas"), entry("com.example.mail", "Mail"),
                               entry("com.example.atlas", "Atlas"), "no entry"};
    put(kRunningApplications, *plist::serialize(running, plist::Format::binary));
    EXPECT_EQ(m_workspace.runningApplications().size(), 3u);
    EXPECT_TRUE(m_workspace.forceTerminate("com.example.atlas"));
    EXPECT_THAT(m_workspace.runningApplications(), ElementsAre(RunningApplication{"com.example.mail", "Mail"}));

    put(kRunningApplications, bytesOf("damaged"));
    EXPECT_FALSE(m_workspace.forceTerminate("com.example.mail"));
}

} // namespace tavrik::practice
