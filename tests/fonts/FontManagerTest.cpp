#include "fonts/FontStage.h"
#include "platform/Bookmarks.h"
#include "support/FileTree.h"

#include <functional>

namespace tavrik::test {

namespace {

using testing::Each;
using testing::IsEmpty;
using testing::StartsWith;

constexpr const char* kBold = "Mathematical Bold";
constexpr const char* kScript = "Mathematical Script";
constexpr const char* kCaps = "Small Caps";

} // namespace

TEST_F(FontStage, EveryPairOfStylesLeadsBackToTheFirstTitles) {
    session.setInterceptor([](const auto&, const auto&, const auto&) { return ToolResult(); });
    const auto& styles = fonts().fontReplacer().allFontMaps();
    const auto apply = [&](std::size_t style) {
        SCOPED_TRACE(styles[style].name);
        fonts().applyFont(styles[style].name);
        EXPECT_THAT(differences(titles(), firstIn(styles[style].name)), IsEmpty());
    };
    for (std::size_t one = 0; one < styles.size() && !HasFailure(); ++one) {
        SCOPED_TRACE(styles[one].name);
        apply(one);
        apply(one);
        for (std::size_t other = one + 1; other < styles.size() && !HasFailure(); ++other) {
            apply(other);
            apply(one);
        }
        fonts().resetAllFonts();
        EXPECT_THAT(differences(titles(), first), IsEmpty());
    }
}

TEST_F(FontStage, FollowsWhatTheUserRenamesAndCorrectsWhileAStyleIsShown) {
    fonts().applyFont(kBold);
    nameFolder(folders[0], "Games");
    nameFolder(folders[1], fonts().fontReplacer().convert("MUSIC apps", kBold));
    for (const char* style : {kCaps, kScript}) {
        fonts().applyFont(style);
        EXPECT_EQ(folderTitle(folders[0]), fonts().fontReplacer().convert("Games", style));
        EXPECT_EQ(folderTitle(folders[1]), fonts().fontReplacer().convert("MUSIC apps", style));
    }
    nameFolder(folders[1], fonts().fontReplacer().convert("music APPS", kScript));
    fonts().resetAllFonts();
    EXPECT_EQ(folderTitle(folders[0]), "Games");
    EXPECT_EQ(folderTitle(folders[1]), "music APPS");
}

TEST_F(FontStage, NamesWrappersAfterTheirFilesAndDeadRowsAfterTheirTitles) {
    const MacPath wrapper = wrapperFolder(practice::kHome) / "Café Ω.app";
    ASSERT_TRUE(mac.files.createFolder(wrapper));
    auto database = sqlite::Connection::open(volume.launchpadDatabase(), sqlite::OpenMode::readWrite);
    auto update =
        database->prepare("UPDATE apps SET title = 'Any', bookmark = ? WHERE bundleid = 'org.example.atlas'");
    update.bind(1, ByteView(*mac.bookmarks.make(wrapper)));
    ASSERT_EQ(update.step(), sqlite::Step::done);
    plist::Value dock = volume.dockPreferences();
    for (plist::Value& tile : *dock.find("persistent-apps")->as<plist::Array>()) {
        auto& data = *tile.find("tile-data")->as<plist::Dictionary>();
        const auto* identifier = tile.find("tile-data")->find<std::string>("bundle-identifier");
        if (identifier && *identifier == "org.example.atlas") {
            data["file-data"] = plist::Dictionary{{"_CFURLString", mac.bookmarks.fileURL(wrapper)}};
            data["file-label"] = "Any";
            data.erase("bundle-identifier");
        }
    }
    ASSERT_TRUE(program->dock.writeDockPlist(dock));

    fonts().applyFont(kBold);
    const std::string wanted = fonts().fontReplacer().convert("Café Ω", kBold);
    EXPECT_EQ(volume.appRows("org.example.atlas").front().title, wanted);
    EXPECT_EQ(volume.appRows("org.example.windlass").front().title,
              fonts().fontReplacer().convert("Windlass", kBold));
    const auto tiles = volume.pinnedTiles();
    EXPECT_TRUE(std::ranges::any_of(tiles, [&](const PinnedTile& tile) { return tile.label == wanted; }));
}

TEST_F(FontStage, ALockedDatabaseCostsNoCapitals) {
    for (const auto& before : {std::vector<const char*>{}, {kBold}, {kCaps}, {kBold, kCaps}})
        for (const std::vector<const char*>& locked :
             {std::vector<const char*>{kCaps}, {kBold}, {""}, {kBold, kCaps, kBold}})
            for (const char* after : {"", kScript, kCaps}) {
                for (const char* style : before)
                    change(style);
                const Titles shown = titles();
                {
                    auto other =
                        sqlite::Connection::open(volume.launchpadDatabase(), sqlite::OpenMode::readWrite);
                    ASSERT_TRUE(other && other->execute("BEGIN EXCLUSIVE TRANSACTION"));
                    for (const char* style : locked)
                        change(style);
                    for (const std::int64_t row : folders)
                        EXPECT_EQ(folderTitle(row), shown.at("folder " + std::to_string(row)));
                }
                change(after);
                EXPECT_THAT(differences(titles(), firstIn(after)), IsEmpty()) << after;
                fonts().resetAllFonts();
                ASSERT_THAT(differences(titles(), first), IsEmpty()) << after;
            }
}

TEST_F(FontStage, AFailureInTheMiddleOfAPassUndoesThePassAlone) {
    const Titles styled = firstIn(kBold);
    for (const std::string table : {"apps", "groups"}) {
        SCOPED_TRACE(table);
        ASSERT_TRUE(execute("CREATE TRIGGER stop BEFORE UPDATE OF title ON " + table +
                            " WHEN old.item_id = (SELECT max(item_id) FROM " + table +
                            " WHERE length(title) > 0) BEGIN SELECT RAISE(ABORT, 'stopped'); END"));
        fonts().applyFont(kBold);
        const std::string failed = table == "apps" ? "app" : "folder";
        for (const auto& [place, title] : titles())
            EXPECT_EQ(title, (place.starts_with(failed) ? first : styled).at(place)) << place;
        EXPECT_TRUE(log.mentions("stay as they were: stopped"));
        ASSERT_TRUE(execute("DROP TRIGGER stop"));
        fonts().resetAllFonts();
        EXPECT_THAT(differences(titles(), first), IsEmpty());
    }
}

TEST_F(FontStage, RefusesAnUnknownStyleAndOneThatCannotBeRecorded) {
    const auto before = treeOf(volume.root());
    fonts().applyFont("Comic");
    files.failOn("replace", program->settings.appSupportURL() / "AppSettings.plist", ENOSPC);
    fonts().applyFont(kCaps);
    EXPECT_THAT(differences(before, treeOf(volume.root())),
                Each(testing::HasSubstr("Application Support/com.tavrik.Tavrik/AppSettings")));
    EXPECT_TRUE(log.has("ERROR: Unknown font style: Comic"));
    EXPECT_FALSE(program->settings.getCurrentFontState());
}

TEST_F(FontStage, ForgetsTheBackupsOfFoldersThatAreGone) {
    program->settings.saveFolderBackup(RowID{99'999}, "Gone", "Gone", std::nullopt);
    fonts().applyFont(kBold);
    EXPECT_TRUE(log.has("1 orphaned folder backup(s)"));
    EXPECT_EQ(program->settings.getAllFolderBackups().size(), folders.size());
    ASSERT_TRUE(execute("ALTER TABLE groups RENAME TO elsewhere"));
    fonts().applyFont(kScript);
    EXPECT_EQ(program->settings.getAllFolderBackups().size(), folders.size());
}

} // namespace tavrik::test
