#include "themes/ThemeManager.h"

#include "app/Managers.h"
#include "platform/Png.h"
#include "platform/UserDefaults.h"
#include "support/FileTree.h"
#include "support/LogRecorder.h"
#include "support/SmallMac.h"
#include "support/practice/VirtualMac.h"
#include "themes/ThemePreviewSettingsManager.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QThread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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

/// Before the Mac, whose threads use Qt too.
struct Application {
    int argc = 1;
    char name[6] = "tests";
    char* argv[2] = {name, nullptr};
    QCoreApplication application{argc, argv};
};

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

    Theme create(const std::string& title) { return *themes().createTheme(title, false); }

    /// A permanent icon that the settings name.
    MacPath select(const std::string& bundleID, int number, const Bytes& content) {
        MacPath icon =
            program->settings.iconCacheURL() / bundleID / ("icon_" + std::to_string(number) + ".png");
        EXPECT_TRUE(own.files.createFolder(icon.parent()) && own.files.write(icon, content));
        program->settings.setSelectedIcon(bundleID, number);
        return icon;
    }

    /// By bundle identifier.
    std::map<std::string, Bytes> iconsOf(const Theme& theme) {
        std::map<std::string, Bytes> icons;
        for (const ThemeIcon& icon : themes().library().icons(theme.themeID))
            icons.emplace(icon.bundleID, *own.files.read(icon.file));
        return icons;
    }

    FileTree tree() { return treeOf(own.files, themes().themesDirectory()); }

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
    std::optional<Theme> toRename;
    const auto expect = [&](const std::string& title, const std::string& line) {
        log.clear();
        const bool isDone = run([&] {
            return toRename ? bool(themes().updateTheme(*toRename, title))
                            : bool(themes().createTheme(title, false));
        });
        EXPECT_EQ(isDone, line.starts_with("Successfully")) << line;
        EXPECT_THAT(log.lines(), ElementsAre(line));
        clock.sleep(std::chrono::seconds(1));
    };
    const std::string invalid = "Theme name contains invalid characters";
    const std::string taken = "A theme with this name already exists";
    expect("  Ocean ", "Successfully created theme: Ocean");
    expect("\tOcean", "Error creating theme: " + taken);
    expect("ocean", "Successfully created theme: ocean");
    expect(".a", "Error creating theme: " + invalid);
    expect(std::string(51, 'x'), "Error creating theme: " + invalid);
    const Theme ocean = themes().installedThemes().at(0);
    toRename = Theme{.themeID = ocean.themeID, .name = "stale", .createdDate = {1}};
    expect(" Sea ", "Successfully updated theme: Sea");
    expect("Sea", "Successfully updated theme: Sea");
    expect("ocean", "Error updating theme: " + taken);
    expect("a:b", "Invalid theme name: a:b");
    log.clear();
    files.failOn("replace", {}, EIO);
    EXPECT_FALSE(themes().updateTheme(ocean, "Lake"));
    EXPECT_THAT(log.lines(), ElementsAre(StartsWith("Error updating theme: ")));

    EXPECT_EQ(posted, 4);
    const std::vector<Theme> listed = themes().installedThemes();
    EXPECT_EQ(listed.at(0), (Theme{ocean.themeID, "Sea", ocean.createdDate}));
    files.failNothing();
    start();
    EXPECT_EQ(themes().installedThemes(), listed);
}

TEST_F(ThemeManagerTest, FillsAThemeWithTheIconsThatTheSettingsName) {
    const Bytes png = *png::encode(picture(1));
    select(kAtlas, 0, *png::encode(picture(2)));
    select(kAtlas, 3, png);
    QBuffer jpeg;
    picture(3).save(&jpeg, "JPEG");
    select(kCinder, 0, Bytes(jpeg.data().begin(), jpeg.data().end()));
    select(kInkwell, 0, Bytes{'n', 'o'});
    const MacPath replaced = select(kOrrery, 0, png);
    ASSERT_TRUE(own.files.move(replaced, MacPath("/elsewhere.png")));
    ASSERT_TRUE(own.files.createLink(replaced, "/elsewhere.png"));
    select(kRookery, 0, png);
    program->settings.setSelectedIcon(kRookery, 7); // a theme's icon, or none at all
    ASSERT_TRUE(
        program->pendingChanges.addIcon(kFerrule, *program->iconStore.savePendingIcon(picture(4), kFerrule)));
    log.clear();

    const auto theme = run([&] { return themes().createTheme("Mine", true); });
    ASSERT_TRUE(theme);
    auto icons = iconsOf(*theme);
    EXPECT_EQ(icons.size(), 2u);
    EXPECT_EQ(icons[kAtlas], png) << "byte for byte";
    EXPECT_EQ(png::decode(icons[kCinder]).size(), QSize(40, 20));
    const MacPath folder = themes().library().folderOf(theme->themeID);
    const auto steps = files.journal();
    EXPECT_LT(std::ranges::find(steps, "move " + folder.string()),
              std::ranges::find(steps, "replace " + (folder / "Icons" / (kAtlas + ".png")).string()))
        << "the theme comes whole before its icons";
    EXPECT_TRUE(log.has("Moving selected icons to theme: Mine (ID: " + theme->themeID + ")"));
    EXPECT_TRUE(log.has("Moved selected icon for " + kAtlas) && log.has("Moved selected icon for " + kCinder));
    EXPECT_TRUE(log.mentions("Failed to save icon to theme: ") &&
                log.has("Icon move complete. Moved 2 icons."));
    EXPECT_EQ(log.lines().back(), "Successfully created theme: Mine");
}

TEST_F(ThemeManagerTest, ADroppedPictureIsSquaredAndKeptFromTheStagedDeletionOfTheIconBefore) {
    const Theme ocean = create("Ocean");
    ASSERT_TRUE(themes().addIcon(picture(9), kAtlas, ocean));
    for (const std::string& bundleID : {kAtlas, kCinder})
        program->pendingChanges.deleteThemeIcon(ocean.themeID, bundleID + ".png");
    ASSERT_TRUE(run([&] { return themes().addIcon(picture(200), kAtlas, ocean); }));
    const QImage written = png::decode(iconsOf(ocean)[kAtlas]);
    EXPECT_EQ(written.size(), QSize(1024, 1024));
    EXPECT_EQ(written.pixelColor(512, 512).red(), 200);
    EXPECT_EQ(written.pixelColor(512, 100).alpha(), 0);
    EXPECT_THAT(program->pendingChanges.staged().pendingThemeIconDeletions,
                ElementsAre(testing::Pair(ocean.themeID, ElementsAre(kCinder + ".png"))));

    const FileTree before = tree();
    log.clear();
    EXPECT_FALSE(themes().addIcon({}, kAtlas, ocean));
    EXPECT_FALSE(themes().addIcon(picture(1), "../x", ocean));
    files.failOn("flush", {}, ENOSPC);
    EXPECT_FALSE(themes().addIcon(picture(1), kAtlas, ocean));
    const auto failed = StartsWith("Failed to save icon to theme: ");
    EXPECT_THAT(log.lines(), ElementsAre(failed, failed, failed));
    EXPECT_THAT(differences(before, tree()), ElementsAre());
}

TEST_F(ThemeManagerTest, OffersWhatIsNeitherHiddenNorStagedToGo) {
    const auto folder = [&](const Theme& theme) { return themes().library().iconsOf(theme.themeID); };
    std::vector<Theme> all;
    for (const char* title : {"plain", "hidden", "to be hidden", "icon deleted", "theme deleted"}) {
        all.push_back(create(title));
        clock.sleep(std::chrono::seconds(1));
        for (const char* extension : {".png", ".icns"})
            ASSERT_TRUE(own.files.create(folder(all.back()) / (kAtlas + extension), {}));
    }
    const std::string file = kAtlas + ".png";
    program->hiddenThemeIcons.hide(all[1].themeID, file);
    program->pendingChanges.hideThemeIcon(all[2].themeID, file);
    program->pendingChanges.deleteThemeIcon(all[3].themeID, file);
    program->pendingChanges.deleteTheme(all[4].themeID);
    EXPECT_THAT(run([&] { return themes().themeIconsFor(kAtlas); }),
                ElementsAre(folder(all[0]) / file, folder(all[3]) / (kAtlas + ".icns")));
    EXPECT_THAT(themes().themeIconsFor(kCinder), ElementsAre());

    // A theme that goes takes along what is remembered of it.
    EXPECT_TRUE(run([&] { return themes().removeTheme(all[1].themeID); }));
    EXPECT_FALSE(own.defaults.value("HiddenThemeIcons." + all[1].themeID));
    EXPECT_THAT(themes().installedThemes(), ElementsAre(all[0], all[2], all[3], all[4]));
    EXPECT_TRUE(themes().removeTheme(all[1].themeID));
}

TEST_F(ThemeManagerTest, SaysThatItsFolderCannotBeMade) {
    const MacPath folder = themes().themesDirectory();
    ASSERT_TRUE(own.files.remove(folder) && own.files.create(folder, {}));
    themes().open();
    EXPECT_THAT(log.lines(), ElementsAre(StartsWith("Error creating themes directory: "),
                                         "Themes path exists but is not a directory: " + folder.string()));
    EXPECT_FALSE(themes().createTheme("x", false));
}

TEST(ThemePreviewSettings, FallBackFromWhatTheyDoNotKnow) {
    SmallMac mac;
    ThemePreviewSettingsManager settings(mac.mac.defaults);
    settings.setPreviewStyle(ThemePreviewStyle::grid);
    EXPECT_EQ(settings.previewStyle(), ThemePreviewStyle::grid);
    ASSERT_TRUE(mac.mac.defaults.set("ThemePreviewStyle", "spiral"));
    EXPECT_EQ(settings.previewStyle(), ThemePreviewStyle::scattered);
}

} // namespace tavrik::test
