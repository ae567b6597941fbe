#include "platform/Sqlite.h"
#include "platform/Workspace.h"
#include "wrappers/WrapperStage.h"

namespace tavrik::test {

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using Waits = std::vector<std::chrono::milliseconds>;

const Waits kRestart{100ms, 100ms, 200ms};
constexpr const char* kKilled = "\n>>> DOCK RESTART: Killing Dock process to refresh Launchpad and Dock...";
constexpr const char* kRestarted = ">>> DOCK RESTART: Complete\n";

struct Lifecycle : WrapperStage {
    QColor iconColour() { return mac.workspace.icon(wrapperOf(atlas)).pixelColor(8, 8); }

    sqlite::Connection database() {
        return *sqlite::Connection::open(volume.launchpadDatabase(), sqlite::OpenMode::readWrite);
    }

    const std::string kWarning = " WARNING! README!.rtf";
};

} // namespace

TEST_F(Lifecycle, CreatesAWrapperInTheOriginalsPlaceAndRemovesItWithoutATrace) {
    program->settings.setSelectedIcon(atlas.bundleID, 0);
    log.clear();
    ASSERT_TRUE(wrappers().createWrapper(atlas, redIcon()));
    const LaunchpadItem& home = firstRow(atlas);
    EXPECT_THAT(
        log.lines(),
        ElementsAre(
            "\n=== CREATING TAVRIK APP ===", "Name: Atlas", "Bundle ID: org.example.atlas",
            "Path: /Applications/Atlas.app",
            "Target app - RowID: " + std::to_string(home.row) + ", Parent: " + std::to_string(home.parent) +
                ", Ordering: " + std::to_string(home.ordering),
            "Created tavrik app at: " + wrapperOf(atlas).string(), "Icon set attempt 1",
            "Successfully set custom icon for " + wrapperOf(atlas).string(), kKilled, kRestarted,
            "Attempt 1: Tavrik app not yet indexed, waiting...",
            "Attempt 2: Tavrik app not yet indexed, waiting...",
            "Found visible tavrik app with RowID: " + std::to_string(rowsOf(atlas).wrapper->row),
            "Successfully swapped to tavrik app", "App is in Dock, updating bookmark...",
            "  Added warning RTF: " + (kWrappers / kWarning).string(),
            "Backed up Dock plist to " + dockPreferencesBackupPath(practice::kHome).string(),
            "Saved original Dock bookmark for org.example.atlas",
            "Updated Dock entry for org.example.atlas to use tavrik app",
            "Successfully wrote updated Dock plist", kKilled, kRestarted, "=== END TAVRIK APP CREATION ===\n"));
    // The Dock comes back 0.4 s after its end and indexes 4 s later.
    EXPECT_EQ(clock.waits(), (Waits{100ms, 100ms, 200ms, 3s, 1s, 1s, 500ms, 100ms, 100ms, 200ms}));
    expectSwapped(atlas);
    EXPECT_EQ(iconColour(), QColor(Qt::red));
    EXPECT_THAT(*mac.files.list(kWrappers), testing::UnorderedElementsAre(kWarning, "Atlas.app"));

    clock.forgetWaits();
    log.clear();
    EXPECT_TRUE(wrappers().removeWrapper(atlas, RestartDock::yes));
    EXPECT_THAT(
        log.lines(),
        ElementsAre("\n=== REMOVING TAVRIK APP ===", "Name: Atlas", "Bundle ID: org.example.atlas",
                    "Successfully swapped back to original app", "App is in Dock, restoring original...",
                    "Restored original Dock entry for org.example.atlas", "Successfully restored Dock entry",
                    "  Removed warning RTF: " + (kWrappers / kWarning).string(), "Removed tavrik app file",
                    kKilled, kRestarted, "=== END TAVRIK APP REMOVAL ===\n"));
    EXPECT_EQ(clock.waits(), kRestart);
    expectUntouched(atlas);

    // Once more has nothing to undo.
    clock.forgetWaits();
    EXPECT_TRUE(wrappers().removeWrapper(atlas, RestartDock::no));
    EXPECT_TRUE(log.has("No tavrik mapping found for org.example.atlas"));
    EXPECT_EQ(clock.waits(), Waits());
    expectUntouched(atlas);
}

TEST_F(Lifecycle, BatchesCreationsAroundOneRestart) {
    const ApplicationInfo halyard = application("net.example.halyard", "/Applications/Utilities/Halyard.app");
    ASSERT_TRUE(wrappers().batchCreateWrapper(atlas, redIcon()));
    ASSERT_TRUE(wrappers().batchCreateWrapper(halyard, QImage())) << "an icon that cannot be set is a warning";
    EXPECT_TRUE(log.has("    WARNING: Failed to set custom icon after 3 attempts"));
    EXPECT_EQ(clock.waits(), (Waits{200ms, 200ms}));

    program->launchpad.restartDock();
    clock.sleep(3s);
    clock.forgetWaits();
    ASSERT_TRUE(wrappers().completeCreation(atlas));
    ASSERT_TRUE(wrappers().completeCreation(halyard));
    EXPECT_EQ(clock.waits(), (Waits{1s, 1s})) << "the second is indexed with the first";
    ASSERT_TRUE(wrappers().completeCreation(atlas)) << "a repeat swaps nothing";
    for (const ApplicationInfo& app : {atlas, halyard})
        EXPECT_EQ(placeOf(*rowsOf(app).wrapper), placeOf(firstRow(app)));
    EXPECT_EQ(tilePath(atlas), wrapperOf(atlas));

    EXPECT_TRUE(wrappers().removeWrapper(atlas, RestartDock::no));
    EXPECT_TRUE(mac.files.exists(kWrappers / kWarning)) << "another wrapper is still there";
    EXPECT_TRUE(wrappers().removeWrapper(halyard, RestartDock::yes));
    expectUntouched(atlas);
}

TEST_F(Lifecycle, SwapsAHiddenApplicationAndPutsItsFlagBack) {
    ASSERT_TRUE(wrappers().createWrapper(tips, redIcon()));
    const Pair rows = rowsOf(tips);
    EXPECT_EQ(rows.wrapper->flags, kHiddenFlag);
    EXPECT_EQ(rows.original->flags, 0);
    expectSwapped(tips);

    program->database.loadLaunchpadApps(); // which records hidden rows too
    const auto hidden = program->settings.getHiddenFlagApp(tips.bundleID);
    EXPECT_EQ(hidden->originalRowID, RowID{rows.original->row});
    EXPECT_EQ(hidden->tavrikRowID, RowID{rows.wrapper->row});
    EXPECT_TRUE(wrappers().removeWrapper(tips, RestartDock::yes));
    EXPECT_FALSE(program->settings.getHiddenFlagApp(tips.bundleID)->tavrikRowID);
    expectUntouched(tips);
}

TEST_F(Lifecycle, UndoesACreationThatLaunchpadNeverIndexes) {
    practice::writeDockBehaviour(volume.root(), {.indexes = false});
    Waits waits{100ms, 100ms, 200ms, 3s};
    waits.resize(4 + 15, 1s);
    for (const std::string indent : {"", "    "}) {
        program->settings.setSelectedIcon(atlas.bundleID, 2);
        log.clear();
        clock.forgetWaits();
        if (indent.empty()) {
            EXPECT_FALSE(wrappers().createWrapper(atlas, redIcon()));
        } else {
            ASSERT_TRUE(wrappers().batchCreateWrapper(atlas, redIcon()));
            EXPECT_FALSE(wrappers().completeCreation(atlas));
        }
        EXPECT_EQ(clock.waits(), indent.empty() ? waits : Waits(15, 1s));
        for (const std::string line :
             {"CLEANUP: Removing failed tavrik app and reverting to original",
              "Removed failed tavrik app wrapper", "Reset selected icon to original for org.example.atlas"})
            EXPECT_TRUE(log.has(indent + line)) << line;
        EXPECT_TRUE(log.has("ERROR: Tavrik app was not indexed after 15"));
        expectUntouched(atlas);
    }
}

TEST_F(Lifecycle, UndoesACreationWhoseSwapFails) {
    std::optional<sqlite::Connection> other;
    clock.schedule(5s, [&] { // as the Dock writes
        other = database();
        ASSERT_TRUE(other->execute("BEGIN IMMEDIATE"));
    });
    EXPECT_FALSE(wrappers().createWrapper(atlas, redIcon()));
    other.reset();
    EXPECT_TRUE(log.has("ERROR: Failed to perform visibility swap"));
    program->launchpad.restartDock();
    expectUntouched(atlas);
}

TEST_F(Lifecycle, UpdatesAnIconAndRebuildsAWrapperThatWasDeleted) {
    EXPECT_TRUE(wrappers().updateWrapperIcon(atlas, redIcon()));
    expectSwapped(atlas);
    clock.forgetWaits();
    EXPECT_TRUE(wrappers().createWrapper(atlas, plainIcon(Qt::blue)));
    EXPECT_EQ(clock.waits(), kRestart);
    EXPECT_EQ(iconColour(), QColor(Qt::blue));
    expectSwapped(atlas);

    // The Dock has not noticed yet, so that the wrapper's row still has the original's place.
    ASSERT_TRUE(mac.files.remove(wrapperOf(atlas)));
    EXPECT_TRUE(wrappers().updateWrapperIcon(atlas, redIcon()));
    EXPECT_TRUE(log.has("Tavrik app file missing but mapping exists, cleaning up..."));
    expectSwapped(atlas);
    clock.forgetWaits();
    EXPECT_FALSE(wrappers().updateWrapperIcon(atlas, QImage()));
    EXPECT_EQ(clock.waits(), (Waits{200ms, 200ms, 100ms, 100ms, 200ms}));
}

TEST_F(Lifecycle, RepairsWhatItCanWhenTheWrapperOrTheSavedBookmarkIsGone) {
    ASSERT_TRUE(wrappers().createWrapper(atlas, redIcon()));
    wrappers().refreshWrapper(atlas);
    expectSwapped(atlas);
    ASSERT_TRUE(mac.files.remove(kWrappers));
    wrappers().refreshWrapper(atlas);
    EXPECT_TRUE(log.has("WARNING: Tavrik app missing for org.example.atlas, cleaning up mapping"));
    program->launchpad.restartDock();
    expectUntouched(atlas);

    ASSERT_TRUE(wrappers().createWrapper(atlas, redIcon()));
    program->settings.removeDockBookmark(atlas.bundleID);
    EXPECT_TRUE(wrappers().removeWrapper(atlas, RestartDock::no));
    EXPECT_TRUE(log.has("Normal restoration failed, attempting force update..."));
    EXPECT_EQ(tilePath(atlas), atlas.path);
}

TEST_F(Lifecycle, NamesAWrapperAfterTheBundleAndNotAfterItsTitle) {
    ASSERT_TRUE(database().execute("UPDATE apps SET title = '../𝐀𝐭𝐥𝐚𝐬' WHERE bundleid = 'org.example.atlas'"));
    const auto catalogued = [&] {
        const auto rows = program->database.loadLaunchpadApps();
        return std::ranges::find(rows, atlas.bundleID, [](auto& row) { return row.first.bundleID; })->first;
    };
    ASSERT_TRUE(wrappers().createWrapper(catalogued(), redIcon()));
    EXPECT_TRUE(mac.files.exists(kWrappers / "Atlas.app"));
    EXPECT_EQ(catalogued().path, atlas.path) << "the original is found by the wrapper's file name";
    EXPECT_TRUE(wrappers().removeWrapper(catalogued(), RestartDock::no));
    EXPECT_FALSE(mac.files.exists(kWrappers / "Atlas.app"));
}

} // namespace tavrik::test
