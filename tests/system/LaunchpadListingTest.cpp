#include "LaunchpadSample.h"

#include <gmock/gmock.h>

namespace tavrik {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class LaunchpadListing : public test::LaunchpadSample {
protected:
    std::vector<std::string> names() {
        std::vector<std::string> found;
        for (const auto& [app, entry] : database.loadLaunchpadApps())
            found.push_back(app.name);
        return found;
    }
};

TEST_F(LaunchpadListing, SortsByNameWithoutRegardToCaseAndKeepsEqualOnes) {
    std::int64_t row = 1;
    for (const char* title : {"Zebra", "apple", "Éclair", "eclair", "Banana", "éclair"})
        addApp(row++, title, std::string("com.example.") + title, 0, MacPath("/Applications") / title);
    EXPECT_THAT(names(), ElementsAre("apple", "Banana", "eclair", "Éclair", "éclair", "Zebra"));
}

TEST_F(LaunchpadListing, ListsEachTrimmedIdentifierOnceAndOnlyWhatIsThere) {
    addApp(1, "Atlas", " com.example.atlas\n", 0, MacPath("/Applications/Atlas.app"));
    addApp(2, "Atlas 2", "com.example.atlas", 0, MacPath("/Applications/Atlas 2.app"));
    addApp(3, "Nameless", std::nullopt, 0, MacPath("/Applications/Nameless.app"));
    addApp(4, "Gone", "com.example.gone", 0, MacPath("/Applications/Gone.app"));
    ignoreFailure(small.files.remove(MacPath("/Applications/Gone.app")));
    addApp(5, "Gone too", "com.example.gone", 0, MacPath("/Applications/Gone too.app"));
    addRow(6, "Damaged", "com.example.damaged", 0, Bytes{1, 2, 3});
    addRow(7, "Unmarked", "com.example.unmarked", 0, std::nullopt);
    const auto apps = database.loadLaunchpadApps();
    ASSERT_EQ(apps.size(), 1u);
    const auto& [app, entry] = apps.front();
    EXPECT_EQ(app.bundleID, "com.example.atlas");
    EXPECT_EQ(app.path, MacPath("/Applications/Atlas.app"));
    EXPECT_EQ(entry.rowID, RowID{1});
    EXPECT_EQ(entry.parentID, RowID{101});
    EXPECT_EQ(app.id.size(), 36u);
    EXPECT_NE(app.id, database.loadLaunchpadApps().front().first.id);
}

TEST_F(LaunchpadListing, ListsHiddenItemsOfThePlatformOnlyAndRecordsThemInOneWrite) {
    addApp(1, "Chess", "com.apple.Chess", 128, MacPath("/System/Applications/Chess.app"));
    addApp(2, "Hidden", "com.example.hidden", 129, MacPath("/Applications/Hidden.app"));
    addApp(3, "Unflagged", "com.example.unflagged", std::nullopt, MacPath("/Applications/Unflagged.app"));
    addApp(4, "Unflagged Apple", "com.apple.unflagged", std::nullopt, MacPath("/System/Applications/U.app"));
    addApp(5, "Books", "com.apple.books", 130, MacPath("/System/Applications/Books.app"));
    small.files.forget();
    EXPECT_THAT(names(), ElementsAre("Books", "Chess", "Unflagged Apple"));
    EXPECT_THAT(small.files.journal(), Contains(testing::StartsWith("replace")).Times(1));
    EXPECT_EQ(settings.getHiddenFlagApp("com.apple.Chess"),
              (HiddenFlagApp{128, RowID{1}, std::nullopt, true, small.clock.now()}));
    EXPECT_EQ(settings.getAllHiddenFlagApps().size(), 2u);
    EXPECT_TRUE(log.has("📌 Detected hidden flag app: com.apple.Chess with rowID: 1"));
}

TEST_F(LaunchpadListing, NeverTakesAWrappersRowForAHiddenApplicationsOwn) {
    addApp(1, "Chess", "com.apple.Chess", 0, MacPath("/System/Applications/Chess.app"));
    addApp(2, "A Chess", "com.apple.Chess", 128, small.mac.volume.home() / "Applications/Tavrik/Chess.app");
    settings.saveHiddenFlagApp("com.apple.Chess", 128, RowID{1}, RowID{2}, true);
    const auto apps = database.loadLaunchpadApps();
    ASSERT_EQ(apps.size(), 1u);
    EXPECT_EQ(apps.front().first.path, MacPath("/System/Applications/Chess.app"));
    EXPECT_EQ(settings.getHiddenFlagApp("com.apple.Chess"),
              (HiddenFlagApp{128, RowID{1}, RowID{2}, true, small.clock.now()}));
}

TEST_F(LaunchpadListing, TellsIOSUnsupportedAndMisplacedApplications) {
    const MacPath home = small.mac.volume.home();
    addApp(1, "A", "com.example.a", 0, MacPath("/opt/A.app"));
    addApp(2, "B", "com.apple.dt.Xcode", 0, MacPath("/Applications/B.app"));
    addApp(3, "C", "com.apple.clock", 0, MacPath("/opt/C.app"));
    addApp(4, "D", "com.example.d", 0, home / "Applications/D.app");
    addApp(5, "E", "com.example.e", 0, home / "Applications/Tavrik/E.app");
    ignoreFailure(small.files.createFolder(MacPath("/opt/C.app/Wrapper")));
    ignoreFailure(small.files.createFolder(MacPath("/Applications/Utilities/E.app")));
    log.clear();
    std::string marks;
    for (const auto& [app, entry] : database.loadLaunchpadApps())
        marks +=
            app.name + (app.isIOSApp ? "i" : "") + (app.isUnsupportedApp ? "u" : "") + app.path.string() + "\n";
    EXPECT_EQ(marks, "Au/opt/A.app\nBu/Applications/B.app\nCiu/opt/C.app\nD" + home.string() +
                         "/Applications/D.app\nE/Applications/Utilities/E.app\n");
    EXPECT_THAT(log.lines(),
                ElementsAre("Found non-standard location app: A at /opt/A.app",
                            "Found bundle ID unsupported app: B with bundle ID: com.apple.dt.Xcode",
                            "Found iOS app: C at /opt/C.app",
                            "Found bundle ID unsupported app: C with bundle ID: com.apple.clock",
                            "Found non-standard location app: C at /opt/C.app"));
}

TEST_F(LaunchpadListing, IsEmptyAndSilentWithoutAReadableDatabase) {
    addApp(1, "Atlas", "com.example.atlas", 0, MacPath("/Applications/Atlas.app"));
    run("ALTER TABLE items RENAME COLUMN ordering TO position");
    EXPECT_THAT(*database.missingColumns(), ElementsAre("items.ordering"));
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_THAT(database.appEntries("com.example.atlas"), IsEmpty());
    connection.reset();
    const MacPath file = database.launchpadDatabasePath();
    ignoreFailure(small.files.write(file, bytesOf(std::string(4096, 'x'))));
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_FALSE(database.missingColumns());
    ignoreFailure(small.files.remove(file.parent()));
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_FALSE(database.swapItemPlacement(RowID{1}, RowID{2}));
    EXPECT_THAT(log.lines(), IsEmpty());
}

} // namespace
} // namespace tavrik
