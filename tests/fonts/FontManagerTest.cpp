#include "fonts/FontStage.h"
#include "fonts/TitleChanges.h"
#include "platform/Bookmarks.h"
#include "support/FileTree.h"

#include <set>

namespace tavrik::test {

using FontManagerTest = FontStage;

TEST_F(FontManagerTest, EveryPairOfStylesLeadsBackToTheFirstTitles) {
    session.setInterceptor([](const auto&...) { return ToolResult(); });
    const auto& styles = fonts().fontReplacer().allFontMaps();
    for (auto one = styles.begin(); one != styles.end() && !HasFailure(); ++one) {
        SCOPED_TRACE(one->name);
        show(one->name);
        for (auto other = one; other != styles.end() && !HasFailure(); ++other) {
            show(other->name);
            show(one->name);
        }
        show("");
    }
}

TEST_F(FontManagerTest, FollowsWhatTheUserRenamesAndCorrectsWhileAStyleIsShown) {
    show(kBold);
    nameFolder(0, "Games");
    nameFolder(1, "EBOOKS ÉTÉ", kBold);
    show(kCaps);
    show(kScript);
    nameFolder(1, "Ebooks ÉTÉ", kScript);
    show("");
}

TEST_F(FontManagerTest, NamesWrappersAfterTheirFilesAndDeadRowsAfterTheirTitles) {
    const MacPath wrapper = wrapperFolder(practice::kHome) / "Café Ω.app";
    ASSERT_TRUE(mac.files.createFolder(wrapper));
    auto database = openDatabase();
    auto update =
        database.prepare("UPDATE apps SET title = 'Any', bookmark = ? WHERE bundleid = 'org.example.atlas'");
    update.bind(1, ByteView(*mac.bookmarks.make(wrapper)));
    ASSERT_EQ(update.step(), sqlite::Step::done);
    plist::Value dock = volume.dockPreferences();
    plist::Value& tile = dock.find("persistent-apps")->as<plist::Array>()->front();
    *tile.find("tile-data") =
        plist::Dictionary{{"file-data", plist::Dictionary{{"_CFURLString", mac.bookmarks.fileURL(wrapper)}}},
                          {"file-label", "Any"}};
    ASSERT_TRUE(program->dock.writeDockPlist(dock));

    fonts().applyFont(kBold);
    EXPECT_EQ(volume.appRows("org.example.atlas").front().title, styled("Café Ω", kBold));
    EXPECT_EQ(volume.appRows("org.example.windlass").front().title, styled("Windlass", kBold));
    EXPECT_EQ(volume.pinnedTiles().front().label, styled("Café Ω", kBold));
}

TEST_F(FontManagerTest, RefusesAnUnknownStyleAndOneThatCannotBeRecorded) {
    const auto before = treeOf(volume.root());
    fonts().applyFont("Comic");
    files.failOn("replace", program->settings.appSupportURL() / "AppSettings.plist", ENOSPC);
    fonts().applyFont(kCaps);
    EXPECT_THAT(differences(before, treeOf(volume.root())),
                testing::Each(testing::HasSubstr("Application Support/com.tavrik.Tavrik/AppSettings")));
    EXPECT_TRUE(log.has("ERROR: Unknown font style: Comic"));
    EXPECT_FALSE(program->settings.getCurrentFontState());
}

TEST_F(FontManagerTest, ForgetsTheBackupsOfFoldersThatAreGone) {
    program->settings.saveFolderBackup(RowID{99'999}, "Gone", "Gone", std::nullopt);
    fonts().applyFont(kBold);
    EXPECT_TRUE(log.has("1 orphaned folder backup(s)"));
    EXPECT_EQ(program->settings.getAllFolderBackups().size(), folders.size());
    execute("ALTER TABLE groups RENAME TO elsewhere");
    fonts().applyFont(kScript);
    EXPECT_EQ(program->settings.getAllFolderBackups().size(), folders.size());
}

TEST_F(FontManagerTest, KeepsTheCapitalsWhereverAKillOrAFullDiskFalls) {
    struct Killed {}; // nothing in the program catches it

    session.setInterceptor([](const auto&...) { return ToolResult(); });
    const std::set<std::string> kinds{"write", "create", "copy", "replace", "remove"};

    const std::tuple<Styles, std::string, std::string> cases[] = {{{}, kCaps, ""},
                                                                  {{}, kCaps, kBold},
                                                                  {{kBold}, kCaps, kBold},
                                                                  {{kBold, kCaps}, kBold, ""},
                                                                  {{kBold, kCaps}, kBold, kScript},
                                                                  {{kCaps}, "", kBold},
                                                                  {{kBold, kCaps}, "", kCaps}};

    for (const auto& [before, stopped, after] : cases)
        for (const bool byKill : {true, false}) {
            SCOPED_TRACE("to '" + stopped + (byKill ? "', killed" : "', failing"));
            // Before each change of the settings, until the style was there before it came to that.
            std::size_t number = 0, changes = 0;
            while (changes >= number && !HasFailure()) {
                program->settings.removeFolderBackups(folders);
                change(before);
                ++number;
                changes = 0;
                files.setRule([&](const FileOperation& operation) -> std::optional<int> {
                    const bool isSettings = operation.path.string().find("AppSettings") != std::string::npos;
                    if (!isSettings || !kinds.contains(operation.name) || ++changes < number)
                        return std::nullopt;
                    return byKill ? throw Killed() : EIO;
                });
                try {
                    change({stopped});
                } catch (const Killed&) {
                }
                files.failNothing();
                program.emplace(mac);
                show(after);
                show("");
            }
            EXPECT_GE(number, 10u) << "too few operations were seen to mean anything";
        }
}

TEST_F(FontManagerTest, KeepsTheCapitalsWhileTheDatabaseIsLocked) {
    for (const Styles& before : {Styles{}, {kBold}, {kCaps}, {kBold, kCaps}})
        for (const Styles& locked : {Styles{kCaps}, {kBold}, {""}, {kBold, kCaps, kBold}})
            for (const std::string& after : {std::string(), kScript, kCaps}) {
                change(before);
                const Titles shown = titles();
                {
                    auto other = openDatabase();
                    ASSERT_TRUE(other.execute("BEGIN EXCLUSIVE TRANSACTION"));
                    change(locked);
                    for (const auto& [place, title] : titles())
                        EXPECT_TRUE(place.starts_with("tile") || title == shown.at(place)) << place << title;
                }
                show(after);
                show("");
            }
}

TEST_F(FontManagerTest, WritesNothingWithoutATransactionOfItsOwn) {
    auto writer = openDatabase();
    auto database = openDatabase();
    ASSERT_TRUE(writer.execute("BEGIN IMMEDIATE"));
    TitleChanges changes(database, "the test");
    ASSERT_TRUE(writer.execute("COMMIT"));
    changes.add(static_cast<std::int64_t>(folders[0]), "Lost");
    EXPECT_FALSE(changes.write("UPDATE groups SET title = ? WHERE item_id = ?"));
    EXPECT_EQ(titles(), first);
}

TEST_F(FontManagerTest, UndoesThePassThatFailsInTheMiddleAndNoOther) {
    for (const auto& [table, failed] :
         {std::pair<std::string, std::string>{"apps", "app"}, {"groups", "folder"}}) {
        SCOPED_TRACE(table);
        execute("CREATE TRIGGER stop BEFORE UPDATE OF title ON " + table +
                " WHEN old.item_id = (SELECT max(item_id) FROM " + table +
                " WHERE length(title) > 0) BEGIN SELECT RAISE(ABORT, 'stopped'); END");
        fonts().applyFont(kBold);
        for (const auto& [place, title] : titles())
            EXPECT_EQ(title, styled(first.at(place), place.starts_with(failed) ? "" : kBold)) << place;
        EXPECT_TRUE(log.mentions("stay as they were: stopped"));
        execute("DROP TRIGGER stop");
        show("");
    }
}

} // namespace tavrik::test
