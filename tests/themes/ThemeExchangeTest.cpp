#include "themes/ThemeExchange.h"

#include "app/Managers.h"
#include "platform/Icns.h"
#include "platform/Png.h"
#include "support/FileTree.h"
#include "support/LogRecorder.h"
#include "support/SmallMac.h"
#include "themes/ThemeFile.h"

#include <QCoreApplication>

#include <gmock/gmock.h>

#include <cerrno>
#include <vector>

namespace tavrik::test {

namespace {

using testing::ElementsAre;
using testing::StartsWith;

const Theme kOcean{.themeID = "abcdefgh01234567", .name = "Ocean", .createdDate = {794'000'000.123456}};

const Theme kFresh{.themeID = "0000000000000000", .name = "New", .createdDate = {5}};

Bytes pictureOf(Qt::GlobalColor colour) {
    QImage image(2, 2, QImage::Format_ARGB32_Premultiplied);
    image.fill(colour);
    return *png::encode(image);
}

const std::map<std::string, Bytes> kIcons{
    {"com.example.atlas.png", pictureOf(Qt::red)},
    {"com.example.atlas.icns", icns::encode(QImage(16, 16, QImage::Format_RGB32))},
    {"com.example.été.png", pictureOf(Qt::blue)}};

/// Before the Macs, whose main queue goes by it.
class ThemeExchangeTest : public testing::Test {
    int argc = 1;
    char program[6] = "tests";
    char* argv[2] = {program, nullptr};
    QCoreApplication application{argc, argv};
};

/// A Mac with a library of themes, empty.
struct Stage {
    SmallMac small;
    FileManager& disk{small.practice.mac().files}; ///< never fails
    Managers managers{small.mac};
    ThemeExchange exchange{small.mac, managers.themes};
    ThemeLibrary& library{managers.themes.library()};

    Stage() { managers.themes.open(); }

    FileTree tree() const { return treeOf(disk, library.path()); }

    Result<Theme> importTheme(const Theme& theme) {
        return exchange.importTheme(*writeThemeFile({.theme = theme, .icons = kIcons}), "x.tavriktheme");
    }
};

} // namespace

TEST_F(ThemeExchangeTest, GivesTheSameFileWhereverAThemeHasBeen) {
    const LogRecorder log;
    Stage here;
    ASSERT_TRUE(here.library.create(kOcean, kIcons));
    const MacPath icons = here.library.iconsOf(kOcean.themeID);
    ASSERT_TRUE(here.disk.createLink(icons / "com.example.link.png", "com.example.atlas.png"));
    ASSERT_TRUE(here.disk.create(icons / "com.example.cut.png", ByteView(pictureOf(Qt::red)).first(40)));
    ASSERT_TRUE(here.disk.create(icons / ".DS_Store", {}));
    ASSERT_TRUE(here.disk.createFolder(icons / "com.example.folder.png"));
    const auto file = here.exchange.exportTheme(kOcean);
    ASSERT_TRUE(file) << file.error().description;
    EXPECT_EQ(readThemeFile(*file, "x")->icons, kIcons);
    for (const char* name :
         {"com.example.link.png", "com.example.cut.png", ".DS_Store", "com.example.folder.png"})
        EXPECT_TRUE(log.mentions("Left out of the theme file of Ocean: “" + std::string(name))) << name;

    Stage there;
    const auto theme = there.exchange.importTheme(*file, "Ocean.tavriktheme");
    ASSERT_TRUE(theme) << theme.error().description;
    EXPECT_EQ(*theme, kOcean);
    EXPECT_THAT(there.managers.themes.installedThemes(), ElementsAre(kOcean));
    EXPECT_EQ(*there.exchange.exportTheme(*theme), *file);
}

TEST_F(ThemeExchangeTest, NeverTakesAnIdOrANameThatIsInUse) {
    Stage stage;
    const std::string longest = "Ocean " + std::string(40, 'x') + "👩‍👩‍👧é z";
    const std::vector<std::pair<std::string, std::string>> imports{
        {"Ocean", "Ocean"},
        {"Ocean", "Ocean 2"},
        {"ocean", "ocean"},
        {"Ocean", "Ocean 3"},
        {"Ocean 2", "Ocean 2 2"},
        {longest, longest},
        {longest, "Ocean " + std::string(40, 'x') + "👩‍👩‍👧é 2"}};
    std::vector<Theme> themes;
    for (const auto& [name, expected] : imports) {
        const FileTree before = stage.tree();
        const auto theme = stage.importTheme({kOcean.themeID, name, kOcean.createdDate});
        ASSERT_TRUE(theme) << theme.error().description;
        EXPECT_EQ(theme->name, expected);
        EXPECT_EQ(theme->createdDate, kOcean.createdDate);
        EXPECT_EQ(theme->themeID == kOcean.themeID, themes.empty());
        EXPECT_THAT(differences(before, stage.tree()), testing::Each(StartsWith("+ ")))
            << "something was changed";
        themes.push_back(*theme);
    }
    EXPECT_THAT(stage.library.load(), testing::UnorderedElementsAreArray(themes));
    // Taken, too: by a link to nowhere, and by what is staged for a theme that is gone.
    EXPECT_TRUE(stage.disk.createLink(stage.library.folderOf(kFresh.themeID), "/nowhere"));
    EXPECT_NE(stage.importTheme(kFresh)->themeID, kFresh.themeID);
    stage.managers.pendingChanges.deleteTheme("1111111111111111");
    EXPECT_NE(stage.importTheme({"1111111111111111", "Again", {}})->themeID, "1111111111111111");
}

TEST_F(ThemeExchangeTest, WritesNothingWhenItRefusesOrFails) {
    Stage stage;
    ASSERT_TRUE(stage.library.create(kOcean, kIcons));
    const FileTree before = stage.tree();
    Bytes file = *writeThemeFile({.theme = kOcean, .icons = kIcons});
    file[file.size() / 2] ^= 1;
    EXPECT_THAT(stage.exchange.importTheme(file, "x").error().description,
                StartsWith("Invalid theme format: “x”"));
    for (const char* operation : {"createFolder", "create", "flush", "move"}) {
        stage.small.files.failOn(operation, {}, ENOSPC);
        const auto failed = stage.importTheme(kFresh);
        EXPECT_TRUE(!failed && failed.error().code == ENOSPC) << operation;
        EXPECT_THAT(failed.error().description, StartsWith("Failed to install theme: "));
        stage.small.files.failNothing();
    }
    EXPECT_FALSE(stage.exchange.exportTheme({"0000000000000000", "Gone", {}}));
    EXPECT_FALSE(stage.exchange.exportTheme({"..", "Up", {}}));
    EXPECT_THAT(differences(before, stage.tree()), testing::IsEmpty());
    EXPECT_THAT(stage.managers.themes.installedThemes(), testing::IsEmpty());
}

} // namespace tavrik::test
