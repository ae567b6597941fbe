#include "themes/ThemeManager.h"

#include "app/Managers.h"
#include "platform/Png.h"
#include "platform/Random.h"
#include "platform/UserDefaults.h"
#include "support/FileTree.h"
#include "support/LogRecorder.h"
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

const std::string kAtlas = "org.example.atlas", kCinder = "org.example.cinder",
                  kInkwell = "org.example.inkwell", kOrrery = "org.example.orrery",
                  kRookery = "org.example.rookery";
const std::string kInvalid = "Theme name contains invalid characters";
const std::string kTaken = "A theme with this name already exists";

QImage picture(int colour) {
    QImage image(40, 20, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(colour, 0, 0));
    return image;
}

/// Draws the same id twice before another one.
struct RepeatingRandom : Random {
    int calls = 0;

    Bytes bytes(std::size_t count) override { return Bytes(count, ++calls <= 2 ? 0 : 1); }
};

/// Stands for a kill: nothing in the program catches it.
struct Killed {};

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

    /// Anew, as after a kill.
    void start() {
        files.failNothing();
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

    void put(const MacPath& file, const Bytes& content) {
        ASSERT_TRUE(own.files.createFolder(file.parent()));
        ASSERT_TRUE(own.files.write(file, content));
    }

    /// A permanent icon that the settings name.
    MacPath select(const std::string& bundleID, int number, const Bytes& content) {
        const MacPath icon =
            program->settings.iconCacheURL() / bundleID / ("icon_" + std::to_string(number) + ".png");
        put(icon, content);
        program->settings.setSelectedIcon(bundleID, number);
        return icon;
    }

    std::vector<std::string> iconsOf(const Theme& theme) {
        std::vector<std::string> bundleIDs;
        for (const ThemeIcon& icon : themes().library().icons(theme.themeID))
            bundleIDs.push_back(icon.bundleID);
        return bundleIDs;
    }

    std::optional<Bytes> contentOf(const Theme& theme, const std::string& bundleID) {
        const auto read = own.files.read(themes().library().iconsOf(theme.themeID) / (bundleID + ".png"));
        return read ? std::optional(*read) : std::nullopt;
    }

    LogRecorder log;
    std::optional<Managers> program;
};

} // namespace

TEST_F(ThemeManagerTest, CreatesWhatItFindsAgainAndTellsNamesApartExactly) {
    int posted = 0;
    const auto observation = program->notificationCenter.observe(std::string(kThemesUpdated), [&] {
        EXPECT_EQ(QThread::currentThread(), application.thread());
        ++posted;
    });

    struct Case {
        std::string name;
        std::string outcome; ///< the name stored, or the error
    };

    const std::vector<Case> cases{{"  Ocean ", "Ocean"},
                                  {"Ocean", kTaken},
                                  {"\tOcean", kTaken},
                                  {"ocean", "ocean"},
                                  {"a.b", "a.b"},
                                  {".a", kInvalid},
                                  {"a.", kInvalid},
                                  {" ", kInvalid},
                                  {"a/b", kInvalid},
                                  {std::string(51, 'x'), kInvalid},
                                  {std::string(50, 'x'), std::string(50, 'x')}};
    std::vector<std::string> names;
    for (const Case& row : cases) {
        SCOPED_TRACE(row.name);
        log.clear();
        const auto created = run([&] { return themes().createTheme(row.name, false); });
        EXPECT_EQ(created ? created->name : created.error().description, row.outcome);
        EXPECT_THAT(
            log.lines(),
            ElementsAre((created ? "Successfully created theme: " : "Error creating theme: ") + row.outcome));
        if (created)
            names.push_back(created->name);
        clock.sleep(std::chrono::seconds(1));
    }
    EXPECT_EQ(posted, 4);
    const std::vector<Theme> created = themes().installedThemes();
    start();
    EXPECT_EQ(themes().installedThemes(), created);
    EXPECT_EQ(names.size(), created.size());
}

TEST_F(ThemeManagerTest, DrawsAnotherIdWhenOneIsTaken) {
    RepeatingRandom random;
    Mac repeating{own.volume,   files,       own.bookmarks, own.workspace, session, own.notifications,
                  own.defaults, own.machine, clock,         own.alerts,    random};
    program.reset();
    program.emplace(repeating);
    EXPECT_EQ(create("a").themeID, std::string(16, 'a'));
    EXPECT_EQ(create("b").themeID, std::string(16, 'b'));
}

TEST_F(ThemeManagerTest, RenamesKeepingIdAndDate) {
    const Theme ocean = create("Ocean");
    create("Desert");

    struct Case {
        std::string name;
        std::string line;
        bool isDone;
    };

    const Theme stale{.themeID = ocean.themeID, .name = "stale", .createdDate = {1}};
    for (const Case& row : {Case{" Sea ", "Successfully updated theme: Sea", true},
                            Case{"Sea", "Successfully updated theme: Sea", true},
                            Case{"Desert", "Error updating theme: " + kTaken, false},
                            Case{"a:b", "Invalid theme name: a:b", false}}) {
        log.clear();
        EXPECT_EQ(bool(run([&] { return themes().updateTheme(stale, row.name); })), row.isDone);
        EXPECT_THAT(log.lines(), ElementsAre(row.line));
    }
    files.failOn("replace", {}, EIO);
    EXPECT_FALSE(themes().updateTheme(ocean, "Lake"));
    EXPECT_TRUE(log.mentions("Error updating theme: "));
    const Theme expected{.themeID = ocean.themeID, .name = "Sea", .createdDate = ocean.createdDate};
    EXPECT_THAT(themes().installedThemes(), testing::Contains(expected));
    start();
    EXPECT_THAT(themes().installedThemes(), testing::Contains(expected));
    EXPECT_FALSE(themes().updateTheme({.themeID = "gone000000000000", .name = {}, .createdDate = {}}, "x"));
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
    ASSERT_TRUE(own.files.remove(replaced));
    ASSERT_TRUE(own.files.createLink(replaced, "/Applications/Atlas.app"));
    select(kRookery, 0, png);
    program->settings.setSelectedIcon(kRookery, 7); // an icon of a theme, or none at all
    ASSERT_TRUE(program->pendingChanges.addIcon(
        "org.example.ferrule", *program->iconStore.savePendingIcon(picture(4), "org.example.ferrule")));
    log.clear();

    const auto theme = run([&] { return themes().createTheme("Mine", true); });
    ASSERT_TRUE(theme);
    EXPECT_THAT(iconsOf(*theme), ElementsAre(kAtlas, kCinder));
    EXPECT_EQ(contentOf(*theme, kAtlas), png) << "byte for byte";
    EXPECT_EQ(png::decode(*contentOf(*theme, kCinder)).size(), QSize(40, 20));
    const auto failed = testing::StartsWith("Failed to save icon to theme: ");
    EXPECT_THAT(log.lines(),
                testing::IsSupersetOf(std::vector<testing::Matcher<std::string>>{
                    "Moving selected icons to theme: Mine (ID: " + theme->themeID + ")",
                    "Moved selected icon for " + kAtlas, "Moved selected icon for " + kCinder, failed, failed,
                    "Icon move complete. Moved 2 icons.", "Successfully created theme: Mine"}));
}

TEST_F(ThemeManagerTest, AKillWhileAThemeIsFilledLeavesWholeIconsOnly) {
    const Bytes png = *png::encode(picture(1));
    select(kAtlas, 0, png);
    select(kCinder, 0, png);
    const FileTree before = treeOf(own.files, themes().themesDirectory());
    bool wasKilled = true;
    for (std::size_t change = 1; wasKilled && !HasFailure(); ++change) {
        SCOPED_TRACE("killed before change " + std::to_string(change));
        std::size_t count = 0;
        files.setRule([&](const FileOperation& operation) -> std::optional<int> {
            if (operation.path.isInside(themes().themesDirectory()) && ++count == change)
                throw Killed();
            return std::nullopt;
        });
        wasKilled = false;
        try {
            ignoreFailure(themes().createTheme("Mine", true));
        } catch (const Killed&) {
            wasKilled = true;
        }
        start();
        themes().library().removeLeftovers();
        const std::vector<Theme> left = themes().installedThemes();
        for (const Theme& theme : left) {
            EXPECT_EQ(theme.name, "Mine");
            for (const std::string& bundleID : iconsOf(theme))
                EXPECT_EQ(contentOf(theme, bundleID), png);
            EXPECT_TRUE(themes().removeTheme(theme.themeID));
        }
        EXPECT_EQ(treeOf(own.files, themes().themesDirectory()), before);
    }
}

TEST_F(ThemeManagerTest, ADroppedPictureIsSquaredAndSavesTheIconFromItsStagedDeletion) {
    const Theme ocean = create("Ocean");
    ASSERT_TRUE(themes().addIcon(picture(9), kAtlas, ocean));
    program->pendingChanges.deleteThemeIcon(ocean.themeID, kAtlas + ".png");
    program->pendingChanges.deleteThemeIcon(ocean.themeID, kCinder + ".png");
    ASSERT_TRUE(run([&] { return themes().addIcon(picture(200), kAtlas, ocean); }));
    const QImage written = png::decode(*contentOf(ocean, kAtlas));
    EXPECT_EQ(written.size(), QSize(1024, 1024));
    EXPECT_EQ(written.pixelColor(512, 512).red(), 200);
    EXPECT_EQ(written.pixelColor(512, 100).alpha(), 0);
    using Deletions = std::map<std::string, std::vector<std::string>>;
    EXPECT_EQ(program->pendingChanges.staged().pendingThemeIconDeletions,
              (Deletions{{ocean.themeID, {kCinder + ".png"}}}));

    const FileTree before = treeOf(own.files, themes().themesDirectory());
    log.clear();
    EXPECT_FALSE(themes().addIcon({}, kAtlas, ocean));
    EXPECT_FALSE(themes().addIcon(picture(1), "../x", ocean));
    files.failOn("flush", {}, ENOSPC);
    EXPECT_FALSE(themes().addIcon(picture(1), kAtlas, ocean));
    EXPECT_THAT(log.lines(), testing::Each(testing::StartsWith("Failed to save icon to theme: ")));
    EXPECT_EQ(log.lines().size(), 3u);
    EXPECT_THAT(differences(before, treeOf(own.files, themes().themesDirectory())), ElementsAre());
}

TEST_F(ThemeManagerTest, OffersWhatIsNeitherHiddenNorStagedToGo) {
    std::vector<Theme> all;
    for (const char* title : {"plain", "hidden", "to be hidden", "icon deleted", "theme deleted", "empty"}) {
        all.push_back(create(title));
        clock.sleep(std::chrono::seconds(1));
        for (const char* extension : {".png", ".icns"})
            if (title != std::string("empty"))
                put(themes().library().iconsOf(all.back().themeID) / (kAtlas + extension), {'x'});
    }
    const std::string file = kAtlas + ".png";
    program->hiddenThemeIcons.hide(all[1].themeID, file);
    program->pendingChanges.hideThemeIcon(all[2].themeID, file);
    program->pendingChanges.deleteThemeIcon(all[3].themeID, file);
    program->pendingChanges.deleteTheme(all[4].themeID);
    const auto icon = [&](const Theme& theme, const char* extension) {
        return themes().library().iconsOf(theme.themeID) / (kAtlas + extension);
    };
    EXPECT_THAT(run([&] { return themes().themeIconsFor(kAtlas); }),
                ElementsAre(icon(all[0], ".png"), icon(all[3], ".icns")));
    EXPECT_THAT(themes().themeIconsFor(kCinder), ElementsAre());

    // A theme that goes takes what is remembered of it along.
    EXPECT_TRUE(run([&] { return themes().removeTheme(all[1].themeID); }));
    EXPECT_THAT(program->hiddenThemeIcons.hidden(all[1].themeID), testing::IsEmpty());
    EXPECT_THAT(themes().installedThemes(), testing::Not(testing::Contains(all[1])));
    EXPECT_FALSE(own.files.exists(themes().library().folderOf(all[1].themeID)));
    EXPECT_TRUE(themes().removeTheme(all[1].themeID));
}

TEST_F(ThemeManagerTest, SaysThatItsFolderCannotBeMade) {
    const MacPath folder = themes().themesDirectory();
    ASSERT_TRUE(own.files.remove(folder));
    ASSERT_TRUE(own.files.create(folder, bytesOf("mine")));
    log.clear();
    themes().open();
    EXPECT_THAT(log.lines(), ElementsAre(testing::StartsWith("Error creating themes directory: "),
                                         "Themes path exists but is not a directory: " + folder.string()));
    EXPECT_FALSE(themes().createTheme("x", false));
    EXPECT_EQ(textOf(*own.files.read(folder)), "mine");
}

TEST_F(ThemeManagerTest, ThePreviewSettingsSurviveARestartAndFallBackFromWhatIsUnknown) {
    ThemePreviewSettingsManager settings(own.defaults);
    settings.setPreviewStyle(ThemePreviewStyle::grid);
    settings.setShowsFileNames(true);
    EXPECT_EQ(ThemePreviewSettingsManager(own.defaults).previewStyle(), ThemePreviewStyle::grid);
    EXPECT_TRUE(ThemePreviewSettingsManager(own.defaults).showsFileNames());
    for (const char* key : {"ThemePreviewStyle", "ThemeShowFileNames"})
        ASSERT_TRUE(own.defaults.set(key, "spiral"));
    EXPECT_EQ(settings.previewStyle(), ThemePreviewStyle::scattered);
    EXPECT_FALSE(settings.showsFileNames());
}

} // namespace tavrik::test
