#include "ApplyStage.h"
#include "support/practice/Killing.h"

#include <cstdlib>

namespace tavrik::test {

namespace {

const std::string kBold = "Mathematical Bold";
const std::string kBeacon = "com.example.lumen.beacon";
const std::string kGantry = "com.example.harbour.gantry";
const std::map<std::string, int> kWanted = {
    {kAtlas, 11}, {kInkwell, 12}, {kBeacon, 13}, {kGantry, 14}, {kMissionControl, 15}};

/// A mixed run that can be cut at any of its steps: three wrappers created, two updated, two removed, a style,
/// and what is staged for themes.
class ApplyKill : public ApplyStage {
protected:
    /// Four applications restyled, two themes, the Dock at rest.
    void prepare() {
        for (const auto& [bundleID, number] :
             {std::pair(kAtlas, 1), {kInkwell, 2}, {kCinder, 3}, {kFerrule, 4}})
            add(bundleID, number);
        expectApplied();
        theme = program->themes.createTheme("Dusk", false)->themeID;
        goingTheme = program->themes.createTheme("Dawn", false)->themeID;
        for (const std::string& bundleID : {kAtlas, kCinder})
            EXPECT_TRUE(program->themes.library().writeIcon(theme, bundleID, bytesOf("a picture")));
    }

    void stage() {
        add(kAtlas, 11);
        add(kInkwell, 12);
        chooseNone(kCinder);
        chooseNone(kFerrule);
        add(kBeacon, 13);
        add(kGantry, 14);
        add(kMissionControl, 15);
        pending().setPendingFont(kBold);
        pending().hideThemeIcon(theme, kAtlas + ".png");
        pending().deleteThemeIcon(theme, kCinder + ".png");
        pending().deleteTheme(goingTheme);
    }

    void expectTarget() {
        for (const auto& [bundleID, number] :
             {std::pair(kAtlas, 11), {kInkwell, 12}, {kBeacon, 13}, {kGantry, 14}, {kMissionControl, 15}}) {
            Look expected = restyled(bundleID, number);
            expected.title = styled(expected.title, kBold);
            EXPECT_EQ(lookOf(bundleID), expected) << bundleID;
        }
        for (const std::string& bundleID : {kCinder, kFerrule}) {
            EXPECT_FALSE(lookOf(bundleID).isWrapper) << bundleID;
            EXPECT_EQ(program->settings.getSelectedIcon(bundleID), std::nullopt);
        }
        EXPECT_THAT(permanentIcons(kAtlas), testing::ElementsAre(1, 11));
        EXPECT_THAT(permanentIcons(kCinder), testing::ElementsAre(3));
        EXPECT_EQ(program->settings.getAllSwapRecords().size(), 0U);
        EXPECT_EQ(program->settings.getAllMappings().size(), 5U);
        EXPECT_FALSE(mac.files.exists(program->themes.library().folderOf(goingTheme)));
        EXPECT_EQ(program->themes.library().icons(theme).size(), 1U);
    }

    /// Kills an apply before its change of that number; false when it was over before. Starts the program anew.
    bool killedBefore(std::size_t change) {
        const bool wasKilled = isKilledBefore(*this, change, [this] {
            const auto ending = std::unique_ptr<ApplyKill, void (*)(ApplyKill*)>(
                this, [](ApplyKill* stage) { stage->program.reset(); });
            program->apply.applyChanges();
        });
        start();
        return wasKilled;
    }

    /// As the start of the program does.
    void recover() {
        program->backups.removeLeftovers();
        if (pending().hasRecoverableChanges()) {
            EXPECT_TRUE(pending().recover());
        }
    }

    void expectNoLeftovers() {
        for (const auto& [path, what] : treeOf(mac.files, program->settings.appSupportURL()))
            EXPECT_FALSE(path.ends_with(".new") || path.find("temp_") != path.npos) << path;
        EXPECT_TRUE(mac.files.list(MacPath(mac.volume.temporaryFolder()))->empty());
    }

    /// The place of an icon in its application's row.
    std::optional<int> placeOf(const std::string& bundleID, int number) {
        const auto row = pending().iconRow(bundleID).displayPaths();
        std::optional<int> place;
        for (std::size_t i = 0; i < row.size(); ++i) {
            if (colourOf(row[i]) != number)
                continue;
            EXPECT_FALSE(place) << "icon " << number << " is there twice";
            place = static_cast<int>(i);
        }
        EXPECT_TRUE(place) << "icon " << number << " of " << bundleID << " is lost";
        return place;
    }

    /// What a person does after a run with failures: chooses anew what is not as it was wanted.
    void stageAgain() {
        for (const auto& [bundleID, number] : kWanted)
            EXPECT_TRUE(pending().selectIcon(bundleID, placeOf(bundleID, number)));
        for (const std::string& bundleID : {kCinder, kFerrule})
            chooseNone(bundleID);
        pending().setPendingFont(kBold);
        pending().deleteThemeIcon(theme, kCinder + ".png");
        pending().deleteTheme(goingTheme);
    }

    /// Back to the very beginning, by the backup and by hand.
    void undoEverything() {
        pending().clearAllPendingChanges();
        ASSERT_TRUE(program->backups.restoreBackup(*program->backups.find("Original State")));
        program->launchpad.restartDock();
        clock.sleep(std::chrono::seconds(5));
        EXPECT_EQ(volume.launchpadItems(), firstRows);
        EXPECT_EQ(volume.pinnedTiles(), firstTiles);
        for (const std::string& bundleID :
             {kAtlas, kInkwell, kCinder, kFerrule, kBeacon, kGantry, kMissionControl})
            ignoreFailure(mac.files.remove(program->iconStore.iconCacheURL() / bundleID));
        for (const std::string& id : {theme, goingTheme})
            ASSERT_TRUE(program->themes.removeTheme(id));
        start();
    }

    std::string theme;
    std::string goingTheme;
};

/// Every so many changes; all of them with TAVRIK_KILL_STRIDE=1.
std::size_t stride() {
    const char* wanted = std::getenv("TAVRIK_KILL_STRIDE");
    return wanted ? std::strtoul(wanted, nullptr, 10) : 41;
}

} // namespace

TEST_F(ApplyKill, ASecondApplyReachesTheTargetFromEveryPoint) {
    prepare();
    std::size_t change = 1 + stride() / 2;
    std::size_t points = 0;
    for (bool wasKilled = true; wasKilled && !HasFailure(); change += stride()) {
        SCOPED_TRACE("killed before change " + std::to_string(change));
        stage();
        wasKilled = killedBefore(change);
        points += wasKilled;
        recover();
        if (pending().hasPendingChanges()) {
            const ApplyResult result = apply();
            EXPECT_EQ(result.end, ApplyResult::End::applied) << testing::PrintToString(result.reasons);
            EXPECT_TRUE(result.failedApps.empty()) << testing::PrintToString(reports);
        }
        expectTarget();
        expectNoLeftovers();

        // And from there, or from the middle of it, back to the very beginning.
        stage();
        killedBefore(change * 7 % 311);
        undoEverything();
        prepare();
    }
    EXPECT_GT(points, 3U) << "too few changes were seen to mean anything";
}

TEST_F(ApplyKill, AFailureAnywhereLosesNothing) {
    std::size_t operation = 1 + stride() / 3;
    for (bool failed = true; failed && !HasFailure(); operation += 5 * stride()) {
        const bool isForGood = operation % 2 == 0;
        SCOPED_TRACE("operation " + std::to_string(operation) +
                     (isForGood ? " fails for good" : " fails once"));
        prepare();
        stage();
        files.forget();
        files.failAt(operation, isForGood ? ENOSPC : EIO, isForGood ? Times::forGood : Times::once);
        const ApplyResult result = apply();
        failed = files.count() >= operation;
        files.failNothing();
        clock.sleep(std::chrono::seconds(5));
        start();
        recover();
        for (const MacPath& backup : program->backups.listBackups())
            EXPECT_TRUE(std::holds_alternative<BackupContents>(program->backups.readBackup(backup)));
        // Where the run itself says that something is not as planned, the person takes the icon back first.
        for (const Deviation& deviation : result.deviations) {
            if (kWanted.contains(deviation.bundleID))
                chooseNone(deviation.bundleID);
        }
        if (pending().hasPendingChanges())
            apply();
        stageAgain();
        const ApplyResult second = apply();
        EXPECT_EQ(second.end, ApplyResult::End::applied) << testing::PrintToString(second.reasons);
        EXPECT_TRUE(second.failedApps.empty()) << testing::PrintToString(reports);
        expectTarget();
        expectNoLeftovers();
        undoEverything();
    }
}

} // namespace tavrik::test
