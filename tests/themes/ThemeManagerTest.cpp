#include "themes/ThemeManager.h"

#include "Application.h"
#include "app/Managers.h"
#include "icons/IconFiles.h"
#include "platform/Png.h"
#include "platform/UserDefaults.h"
#include "support/LogRecorder.h"
#include "support/practice/VirtualMac.h"

#include <QBuffer>
#include <QThread>

#include <gmock/gmock.h>

#include <cerrno>
#include <future>
#include <optional>

namespace tavrik::test {

namespace {

using testing::ElementsAre;
using testing::StartsWith;

const std::string kAtlas = "org.example.atlas", kCinder = "org.example.cinder",
                  kInkwell = "org.example.inkwell", kOrrery = "org.example.orrery",
                  kRookery = "org.example.rookery", kFerrule = "org.example.ferrule";

QImage picture(int colour) {
    QImage image(40, 20, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(colour, 0, 0));
    return image;
}

class ThemeManagerTest : public testing::Test, protected Application, protected VirtualMac {
protected:
    ThemeManagerTest() { start(); }

    void start() {
        program.emplace(mac);
        themes().open();
        log.clear();
    }

    ThemeManager& themes() { return program->themes; }

    /// On another thread, while this one does what is left to it.
    template<typename Work>
    auto run(Work work) {
        auto done = std::async(std::launch::async, work);
        while (done.wait_for(std::chrono::milliseconds(1)) != std::future_status::ready)
            QCoreApplication::processEvents();
        return done.get();
    }

    /// A permanent icon that the settings name.
    MacPath select(const std::string& bundleID, const Bytes& content, int number = 0) {
        MacPath icon = program->settings.iconCacheURL() / bundleID / iconFileName(number);
        EXPECT_TRUE(own.files.createFolder(icon.parent()) && own.files.write(icon, content));
        program->settings.setSelectedIcon(bundleID, number);
        return icon;
    }

    Bytes iconOf(const Theme& theme, const std::string& bundleID) {
        const auto file = themes().library().iconFor(theme.themeID, bundleID, {});
        return file ? *own.files.read(*file) : Bytes();
    }

    LogRecorder log;
    std::optional<Managers> program;
};

} // namespace

TEST_F(ThemeManagerTest, CreatesAndRenamesAndTellsNamesApartExactly) {
    int posted = 0;
    const auto observation = program->notificationCenter.observe(std::string(kThemesUpdated), [&] {
        EXPECT_EQ(QThread::currentThread(), application.thread());
        ++posted;
    });
    const auto expect = [&](const std::optional<Theme>& toRename, const std::string& title,
                            const std::string& line) {
        log.clear();
        const bool isDone = run([&] {
            return toRename ? bool(themes().updateTheme(*toRename, title))
                            : bool(themes().createTheme(title, false));
        });
        EXPECT_EQ(isDone, line.starts_with("Successfully")) << line;
        EXPECT_THAT(log.lines(), ElementsAre(StartsWith(line)));
        clock.sleep(std::chrono::seconds(1));
    };
    expect({}, "  Ocean ", "Successfully created theme: Ocean");
    expect({}, "\tOcean", "Error creating theme: A theme with this name already exists");
    expect({}, "ocean", "Successfully created theme: ocean");
    expect({}, ".a", "Error creating theme: Theme name contains invalid characters");
    const Theme ocean = themes().installedThemes().at(0);
    const Theme stale{.themeID = ocean.themeID, .name = "stale", .createdDate = {1}};
    expect(stale, " Sea ", "Successfully updated theme: Sea");
    expect(stale, "Sea", "Successfully updated theme: Sea");
    expect(stale, "ocean", "Error updating theme: A theme with this name already exists");
    expect(stale, "a:b", "Invalid theme name: a:b");
    files.failOn("replace", {}, EIO, Times::once);
    expect(stale, "Lake", "Error updating theme: ");

    EXPECT_EQ(posted, 4);
    const std::vector<Theme> listed = themes().installedThemes();
    EXPECT_EQ(listed.at(0), (Theme{ocean.themeID, "Sea", ocean.createdDate}));
    start();
    EXPECT_EQ(themes().installedThemes(), listed);
}

TEST_F(ThemeManagerTest, FillsAThemeWithTheIconsThatTheSettingsName) {
    const Bytes png = *png::encode(picture(1));
    select(kAtlas, *png::encode(picture(2)));
    select(kAtlas, png, 3);
    QBuffer jpeg;
    picture(3).save(&jpeg, "JPEG");
    select(kCinder, Bytes(jpeg.data().begin(), jpeg.data().end()));
    select(kInkwell, Bytes{'n', 'o'});
    const MacPath replaced = select(kOrrery, png);
    ASSERT_TRUE(own.files.move(replaced, MacPath("/elsewhere.png")));
    ASSERT_TRUE(own.files.createLink(replaced, "/elsewhere.png"));
    select(kRookery, png);
    program->settings.setSelectedIcon(kRookery, 7); // a theme's icon, or none at all
    ASSERT_TRUE(
        program->pendingChanges.addIcon(kFerrule, *program->iconStore.savePendingIcon(picture(4), kFerrule)));
    log.clear();

    const auto theme = run([&] { return themes().createTheme("Mine", true); });
    ASSERT_TRUE(theme);
    EXPECT_EQ(themes().library().icons(theme->themeID).size(), 2u);
    EXPECT_EQ(iconOf(*theme, kAtlas), png) << "byte for byte";
    EXPECT_EQ(png::decode(iconOf(*theme, kCinder)).size(), QSize(40, 20));
    EXPECT_TRUE(log.has("Moving selected icons to theme: Mine (ID: " + theme->themeID + ")"));
    EXPECT_TRUE(log.has("Moved selected icon for " + kAtlas) && log.has("Moved selected icon for " + kCinder));
    EXPECT_TRUE(log.mentions("Failed to save icon to theme: "));
    EXPECT_TRUE(log.has("Icon move complete. Moved 2 icons."));
    EXPECT_EQ(log.lines().back(), "Successfully created theme: Mine");
}

TEST_F(ThemeManagerTest, ADroppedPictureIsSquaredAndKeptFromTheStagedDeletionOfTheIconBefore) {
    const Theme ocean = *themes().createTheme("Ocean", false);
    ASSERT_TRUE(themes().addIcon(picture(9), kAtlas, ocean));
    for (const std::string& bundleID : {kAtlas, kCinder})
        program->pendingChanges.deleteThemeIcon(ocean.themeID, bundleID + ".png");
    ASSERT_TRUE(run([&] { return themes().addIcon(picture(200), kAtlas, ocean); }));
    const Bytes icon = iconOf(ocean, kAtlas);
    const QImage written = png::decode(icon);
    EXPECT_EQ(written.size(), QSize(1024, 1024));
    EXPECT_EQ(written.pixelColor(512, 512).red(), 200);
    EXPECT_EQ(written.pixelColor(512, 100).alpha(), 0);
    EXPECT_THAT(program->pendingChanges.staged().pendingThemeIconDeletions,
                ElementsAre(testing::Pair(ocean.themeID, ElementsAre(kCinder + ".png"))));

    log.clear();
    EXPECT_FALSE(themes().addIcon({}, kAtlas, ocean));
    files.failOn("flush", {}, ENOSPC);
    EXPECT_FALSE(themes().addIcon(picture(1), kAtlas, ocean));
    EXPECT_THAT(log.lines(), testing::SizeIs(2));
    EXPECT_THAT(log.lines(), testing::Each(StartsWith("Failed to save icon to theme: ")));
    EXPECT_EQ(iconOf(ocean, kAtlas), icon);
}

TEST_F(ThemeManagerTest, OffersWhatIsNeitherHiddenNorStagedToGo) {
    const std::string file = kAtlas + ".png";
    std::vector<Theme> all;
    for (const char* title : {"plain", "hidden", "to be hidden", "icon deleted", "theme deleted"}) {
        const Theme theme{drawThemeID(mac.random), title, {static_cast<double>(all.size())}};
        all.push_back(*themes().installTheme(theme, {{file, {}}, {kAtlas + ".icns", {}}}));
    }
    program->hiddenThemeIcons.hide(all[1].themeID, file);
    program->pendingChanges.hideThemeIcon(all[2].themeID, file);
    program->pendingChanges.deleteThemeIcon(all[3].themeID, file);
    program->pendingChanges.deleteTheme(all[4].themeID);
    const auto folder = [&](const Theme& theme) { return themes().library().iconsOf(theme.themeID); };
    EXPECT_THAT(run([&] { return themes().themeIconsFor(kAtlas); }),
                ElementsAre(folder(all[0]) / file, folder(all[3]) / (kAtlas + ".icns")));
    EXPECT_THAT(themes().themeIconsFor(kCinder), ElementsAre());

    // A theme that goes takes along what is remembered of it.
    EXPECT_TRUE(run([&] { return themes().removeTheme(all[1].themeID); }));
    EXPECT_FALSE(own.defaults.value("HiddenThemeIcons." + all[1].themeID));
    EXPECT_THAT(themes().installedThemes(), ElementsAre(all[0], all[2], all[3], all[4]));
    EXPECT_TRUE(themes().removeTheme(all[1].themeID));
}

} // namespace tavrik::test
