#include "LaunchpadSample.h"

#include <gmock/gmock.h>

namespace tavrik {
namespace {

using testing::ElementsAre;

struct LaunchpadListing : test::LaunchpadSample {
    std::string names() {
        std::string found;
        for (const auto& [app, entry] : database.loadLaunchpadApps())
            found += app.name + " ";
        return found;
    }

    const MacPath apps{"/Applications"};
    const MacPath systemApps{"/System/Applications"};
    const MacPath homeApps = small.mac.volume.home() / "Applications";
};

TEST_F(LaunchpadListing, SortsByNameWithoutRegardToCaseAndKeepsEqualOnes) {
    std::int64_t row = 1;
    for (const char* title : {"Zebra", "apple", "Éclair", "eclair", "Banana", "éclair"})
        addApp(row++, title, std::string("com.example.") + title, 0, apps / title);
    EXPECT_EQ(names(), "apple Banana eclair Éclair éclair Zebra ");
}

TEST_F(LaunchpadListing, ListsEachTrimmedIdentifierOnceAndOnlyWhatIsThereAndShown) {
    addApp(1, "Atlas", " com.example.atlas\n", 0, apps / "Atlas.app");
    addApp(2, "Atlas 2", "com.example.atlas", 0, apps / "Atlas 2.app");
    addApp(3, "Nameless", std::nullopt, 0, apps / "Nameless.app");
    addApp(4, "Gone", "com.example.gone", 0, apps / "Gone.app");
    ignoreFailure(small.files.remove(apps / "Gone.app"));
    addApp(5, "Gone too", "com.example.gone", 0, apps / "Gone too.app");
    addRow(6, "Damaged", "com.example.damaged", 0, Bytes{1, 2, 3});
    addRow(7, "Unmarked", "com.example.unmarked", 0, std::nullopt);
    addApp(8, "Hidden", "com.example.hidden", 129, apps / "Hidden.app");
    addApp(9, "Unflagged", "com.example.unflagged", std::nullopt, apps / "Unflagged.app");
    addApp(10, "Unflagged Apple", "com.apple.unflagged", std::nullopt, systemApps / "U.app");
    addApp(11, "Chess", "com.apple.Chess", 128, systemApps / "Chess.app");
    addApp(12, "Books", "com.apple.books", 130, systemApps / "Books.app");
    small.files.forget();
    EXPECT_EQ(names(), "Atlas Books Chess Unflagged Apple ");
    EXPECT_THAT(small.files.journal(), testing::Contains(testing::StartsWith("replace")).Times(1));
    EXPECT_EQ(settings.getHiddenFlagApp("com.apple.Chess"),
              (HiddenFlagApp{128, RowID{11}, std::nullopt, true, small.clock.now()}));
    EXPECT_EQ(settings.getAllHiddenFlagApps().size(), 2u);
    EXPECT_TRUE(log.has("📌 Detected hidden flag app: com.apple.Chess with rowID: 11"));
    const auto listed = database.loadLaunchpadApps();
    const auto& [app, entry] = listed.front();
    EXPECT_EQ(std::tuple(app.bundleID, app.path, entry.rowID, entry.parentID),
              std::tuple("com.example.atlas", apps / "Atlas.app", RowID{1}, RowID{101}));
    EXPECT_NE(app.id, database.loadLaunchpadApps().front().first.id);
}

TEST_F(LaunchpadListing, TellsIOSUnsupportedAndMisplacedApplications) {
    addApp(1, "A", "com.example.a", 0, MacPath("/opt/A.app"));
    addApp(2, "B", "com.apple.dt.Xcode", 0, apps / "B.app");
    addApp(3, "C", "com.apple.clock", 0, MacPath("/opt/C.app"));
    addApp(4, "D", "com.example.d", 0, homeApps / "D.app");
    addApp(5, "E", "com.example.e", 0, homeApps / "Tavrik/E.app");
    ignoreFailure(small.files.createFolder(MacPath("/opt/C.app/Wrapper")));
    ignoreFailure(small.files.createFolder(apps / "Utilities/E.app"));
    std::vector<std::string> marks;
    for (const auto& [app, entry] : database.loadLaunchpadApps())
        marks.push_back((app.isIOSApp ? "i" : "") + std::string(app.isUnsupportedApp ? "u" : "") +
                        app.path.string());
    EXPECT_THAT(marks, ElementsAre("u/opt/A.app", "u/Applications/B.app", "iu/opt/C.app",
                                   homeApps.string() + "/D.app", "/Applications/Utilities/E.app"));
}

TEST_F(LaunchpadListing, IsEmptyAndSilentWithoutAReadableDatabase) {
    addApp(1, "Atlas", "com.example.atlas", 0, apps / "Atlas.app");
    run("ALTER TABLE items RENAME COLUMN ordering TO position");
    EXPECT_THAT(*database.missingColumns(), ElementsAre("items.ordering"));
    EXPECT_EQ(names(), "");
    EXPECT_THAT(database.appEntries("com.example.atlas"), ElementsAre());
    connection.reset();
    ignoreFailure(small.files.write(database.launchpadDatabasePath(), bytesOf(std::string(4096, 'x'))));
    EXPECT_EQ(names(), "");
    EXPECT_FALSE(database.missingColumns());
    ignoreFailure(small.files.remove(database.launchpadDatabasePath().parent()));
    EXPECT_EQ(names(), "");
    EXPECT_FALSE(database.swapItemPlacement(RowID{1}, RowID{2}));
    EXPECT_THAT(log.lines(), ElementsAre());
}

} // namespace
} // namespace tavrik
