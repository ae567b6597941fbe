#include "platform/Sqlite.h"
#include "platform/Workspace.h"
#include "wrappers/WrapperStage.h"

namespace tavrik::test {

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using Waits = std::vector<std::chrono::milliseconds>;

const Waits kRestart{100ms, 100ms, 200ms};
const std::string kWarning = " WARNING! README!.rtf";

template<typename... Parts>
Waits joined(const Parts&... parts) {
    Waits all;
    (all.insert(all.end(), parts.begin(), parts.end()), ...);
    return all;
}

using Lifecycle = WrapperStage;

} // namespace

TEST_F(Lifecycle, CreatesAWrapperInTheOriginalsPlaceStepByStep) {
    program->settings.setSelectedIcon(atlas.bundleID, 0);
    log.clear();
    ASSERT_TRUE(wrappers().createWrapper(atlas, redIcon()));

    // The Dock comes back 0.4 s after its end and indexes 4 s later.
    EXPECT_EQ(clock.waits(), joined(kRestart, Waits{3000ms, 1000ms, 1000ms, 500ms}, kRestart));
    const std::string wrapper = wrapperOf(atlas).string();
    const LaunchpadItem& home = firstRow(atlas);
    EXPECT_THAT(
        log.lines(),
        ElementsAre("\n=== CREATING TAVRIK APP ===", "Name: Atlas", "Bundle ID: org.example.atlas",
                    "Path: /Applications/Atlas.app",
                    "Target app - RowID: " + std::to_string(home.row) + ", Parent: " +
                        std::to_string(home.parent) + ", Ordering: " + std::to_string(home.ordering),
                    "Created tavrik app at: " + wrapper, "Icon set attempt 1",
                    "Successfully set custom icon for " + wrapper,
                    "\n>>> DOCK RESTART: Killing Dock process to refresh Launchpad and Dock...",
                    ">>> DOCK RESTART: Complete\n", "Attempt 1: Tavrik app not yet indexed, waiting...",
                    "Attempt 2: Tavrik app not yet indexed, waiting...",
                    "Found visible tavrik app with RowID: " + std::to_string(rowsOf(atlas).wrapper->row),
                    "Successfully swapped to tavrik app", "App is in Dock, updating bookmark...",
                    "  Added warning RTF: " + (kWrappers / kWarning).string(),
                    "Backed up Dock plist to " + dockPreferencesBackupPath(practice::kHome).string(),
                    "Saved original Dock bookmark for org.example.atlas",
                    "Updated Dock entry for org.example.atlas to use tavrik app",
                    "Successfully wrote updated Dock plist",
                    "\n>>> DOCK RESTART: Killing Dock process to refresh Launchpad and Dock...",
                    ">>> DOCK RESTART: Complete\n", "=== END TAVRIK APP CREATION ===\n"));
    expectSwapped(atlas);
    EXPECT_EQ(mac.workspace.icon(wrapperOf(atlas)).pixelColor(8, 8), QColor(Qt::red));
    EXPECT_THAT(*mac.files.list(kWrappers), UnorderedElementsAre(kWarning, "Atlas.app"));
}

TEST_F(Lifecycle, RemovesAWrapperAndLeavesNoTrace) {
    program->settings.setSelectedIcon(atlas.bundleID, 0);
    ASSERT_TRUE(wrappers().createWrapper(atlas, redIcon()));
    clock.forgetWaits();
    log.clear();
    EXPECT_TRUE(wrappers().removeWrapper(atlas, RestartDock::yes));
    EXPECT_EQ(clock.waits(), kRestart);
    EXPECT_THAT(
        log.lines(),
        ElementsAre("\n=== REMOVING TAVRIK APP ===", "Name: Atlas", "Bundle ID: org.example.atlas",
                    "Successfully swapped back to original app", "App is in Dock, restoring original...",
                    "Restored original Dock entry for org.example.atlas", "Successfully restored Dock entry",
                    "  Removed warning RTF: " + (kWrappers / kWarning).string(), "Removed tavrik app file",
                    "\n>>> DOCK RESTART: Killing Dock process to refresh Launchpad and Dock...",
                    ">>> DOCK RESTART: Complete\n", "=== END TAVRIK APP REMOVAL ===\n"));
    expectUntouched(atlas);

    // Once more has nothing to undo.
    clock.forgetWaits();
    EXPECT_TRUE(wrappers().removeWrapper(atlas, RestartDock::no));
    EXPECT_TRUE(log.has("No tavrik mapping found for org.example.atlas"));
    EXPECT_THAT(clock.waits(), IsEmpty());
    expectUntouched(atlas);
}

TEST_F(Lifecycle, BatchesCreationsAroundOneRestart) {
    const ApplicationInfo halyard =
        application("Halyard", "net.example.halyard", "/Applications/Utilities/Halyard.app");
    ASSERT_TRUE(wrappers().batchCreateWrapper(atlas, redIcon()));
    ASSERT_TRUE(wrappers().batchCreateWrapper(halyard, QImage())) << "an icon that cannot be set is a warning";
    EXPECT_TRUE(log.has("    WARNING: Failed to set custom icon after 3 attempts"));
    EXPECT_EQ(clock.waits(), (Waits{200ms, 200ms}));

    program->launchpad.restartDock();
    clock.sleep(3s);
    clock.forgetWaits();
    log.clear();
    ASSERT_TRUE(wrappers().completeCreation(atlas));
    ASSERT_TRUE(wrappers().completeCreation(halyard));
    EXPECT_EQ(clock.waits(), (Waits{1000ms, 1000ms})) << "the second is indexed with the first";
    EXPECT_EQ(log.lines().front(), "  Completing creation for: Atlas");
    EXPECT_EQ(log.count("    Successfully swapped to tavrik app"), 2u);
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
    program->settings.setSelectedIcon(tips.bundleID, 0);
    ASSERT_TRUE(wrappers().createWrapper(tips, redIcon()));
    const Pair rows = rowsOf(tips);
    EXPECT_EQ(rows.wrapper->flags, kHiddenFlag);
    EXPECT_EQ(rows.original->flags, 0);
    EXPECT_TRUE(log.has("Recorded hidden flag app before creation: com.apple.tips"));
    EXPECT_TRUE(log.has("🔍 Using special search for hidden flag app: com.apple.tips"));
    EXPECT_TRUE(
        log.has("Updated hidden flag app record with tavrikRowID: " + std::to_string(rows.wrapper->row)));
    expectSwapped(tips);

    program->database.loadLaunchpadApps(); // which records hidden rows too
    EXPECT_EQ(program->settings.getHiddenFlagApp(tips.bundleID)->originalRowID, RowID{rows.original->row});
    EXPECT_TRUE(wrappers().removeWrapper(tips, RestartDock::yes));
    EXPECT_TRUE(log.has("Using special removal for hidden flag app: com.apple.tips"));
    EXPECT_FALSE(program->settings.getHiddenFlagApp(tips.bundleID)->tavrikRowID);
    expectUntouched(tips);
}

TEST_F(Lifecycle, UndoesACreationThatLaunchpadNeverIndexes) {
    practice::writeDockBehaviour(volume.root(), {.indexes = false});
    for (const bool isBatch : {false, true}) {
        program->settings.setSelectedIcon(atlas.bundleID, 2);
        log.clear();
        clock.forgetWaits();
        if (isBatch) {
            ASSERT_TRUE(wrappers().batchCreateWrapper(atlas, redIcon()));
            EXPECT_FALSE(wrappers().completeCreation(atlas));
            EXPECT_EQ(clock.waits(), Waits(15, 1000ms));
        } else {
            EXPECT_FALSE(wrappers().createWrapper(atlas, redIcon()));
            EXPECT_EQ(clock.waits(), joined(kRestart, Waits{3000ms}, Waits(15, 1000ms)));
        }
        EXPECT_TRUE(log.has("ERROR: Tavrik app was not indexed after 15"));
        const std::string indent = isBatch ? "    " : "";
        auto lines = log.lines();
        std::erase(lines, "  Removed warning RTF: " + (kWrappers / kWarning).string());
        EXPECT_THAT(std::vector(lines.end() - 3, lines.end()),
                    ElementsAre(indent + "CLEANUP: Removing failed tavrik app and reverting to original",
                                indent + "Removed failed tavrik app wrapper",
                                indent + "Reset selected icon to original for org.example.atlas"));
        expectUntouched(atlas);
    }
}

TEST_F(Lifecycle, UndoesACreationWhoseSwapFails) {
    std::optional<sqlite::Connection> other;
    for (const bool isDockWriting : {true, false}) {
        SCOPED_TRACE(isDockWriting ? "the Dock is writing" : "the rows cannot be recorded");
        log.clear();
        if (isDockWriting) {
            clock.schedule(5s, [&] {
                other = sqlite::Connection::open(volume.launchpadDatabase(), sqlite::OpenMode::readWrite);
                ASSERT_TRUE(other->execute("BEGIN IMMEDIATE"));
            });
        } else {
            files.failOn("replace", program->settings.appSupportURL() / "AppSettings.plist", ENOSPC);
        }
        EXPECT_FALSE(wrappers().createWrapper(atlas, redIcon()));
        other.reset();
        files.failNothing();
        EXPECT_TRUE(log.has("ERROR: Failed to perform visibility swap"));
        program->launchpad.restartDock();
        expectUntouched(atlas);
    }
}

TEST_F(Lifecycle, UpdatesAnIconAndRebuildsAWrapperThatWasDeleted) {
    EXPECT_TRUE(wrappers().updateWrapperIcon(atlas, redIcon()));
    EXPECT_TRUE(log.has("No tavrik app exists, creating new one"));
    expectSwapped(atlas);

    QImage blue = redIcon();
    blue.fill(Qt::blue);
    clock.forgetWaits();
    log.clear();
    EXPECT_TRUE(wrappers().createWrapper(atlas, blue));
    EXPECT_TRUE(log.has("Found existing tavrik mapping, updating icon instead"));
    EXPECT_EQ(clock.waits(), kRestart);
    EXPECT_EQ(mac.workspace.icon(wrapperOf(atlas)).pixelColor(8, 8), QColor(Qt::blue));
    expectSwapped(atlas);

    // The Dock has not noticed yet, so that the wrapper's row still has the original's place.
    ASSERT_TRUE(mac.files.remove(wrapperOf(atlas)));
    EXPECT_TRUE(wrappers().updateWrapperIcon(atlas, redIcon()));
    EXPECT_TRUE(log.has("Tavrik app file missing but mapping exists, cleaning up..."));
    expectSwapped(atlas);

    clock.forgetWaits();
    EXPECT_FALSE(wrappers().updateWrapperIcon(atlas, QImage()));
    EXPECT_EQ(clock.waits(), joined(Waits{200ms, 200ms}, kRestart));
}

TEST_F(Lifecycle, RepairsWhatItCanWhenTheWrapperOrTheSavedBookmarkIsGone) {
    ASSERT_TRUE(wrappers().createWrapper(atlas, redIcon()));
    wrappers().refreshWrapper(atlas);
    EXPECT_TRUE(log.has("Ensuring icon sync for org.example.atlas"));
    ASSERT_TRUE(mac.files.remove(wrapperOf(atlas)));
    ASSERT_TRUE(mac.files.remove(kWrappers / kWarning));
    wrappers().refreshWrapper(atlas);
    EXPECT_TRUE(log.has("WARNING: Tavrik app missing for org.example.atlas, cleaning up mapping"));
    program->launchpad.restartDock();
    expectUntouched(atlas);

    ASSERT_TRUE(wrappers().createWrapper(atlas, redIcon()));
    program->settings.removeDockBookmark(atlas.bundleID);
    EXPECT_TRUE(wrappers().removeWrapper(atlas, RestartDock::no));
    EXPECT_TRUE(log.has("Normal restoration failed, attempting force update..."));
    EXPECT_TRUE(log.has("Successfully force-updated Dock entry to original app"));
    EXPECT_EQ(tilePath(atlas), atlas.path);
}

TEST_F(Lifecycle, NamesAWrapperAfterTheBundleAndNotAfterItsTitle) {
    auto connection = sqlite::Connection::open(volume.launchpadDatabase(), sqlite::OpenMode::readWrite);
    ASSERT_TRUE(connection->execute("UPDATE apps SET title = '../𝐀𝐭𝐥𝐚𝐬' WHERE bundleid = 'org.example.atlas'"));
    connection.reset();
    const auto catalogued = [&] {
        for (const auto& [app, entry] : program->database.loadLaunchpadApps())
            if (app.bundleID == atlas.bundleID)
                return app;
        return ApplicationInfo();
    };
    ASSERT_TRUE(wrappers().createWrapper(catalogued(), redIcon()));
    EXPECT_TRUE(mac.files.exists(kWrappers / "Atlas.app"));
    EXPECT_EQ(catalogued().path, atlas.path) << "the original is found by the wrapper's file name";
    EXPECT_TRUE(wrappers().removeWrapper(catalogued(), RestartDock::no));
    EXPECT_FALSE(mac.files.exists(kWrappers / "Atlas.app"));
}

} // namespace tavrik::test
