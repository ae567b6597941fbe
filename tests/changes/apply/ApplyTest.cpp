#include "ApplyStage.h"
#include "changes/apply/ManualRefresh.h"

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace tavrik::test {

namespace {

using Apply = ApplyStage;

const std::string kBold = "Mathematical Bold";

/// The banners and the lines that mark the steps.
const std::vector<std::string> kMarks = {
    "Close Apps",        "📦 Creating backup", "📊 PRE-APPLY",        "\n=== APPLYING PENDING CHANGES",
    "Total steps",       "Processing icon",    "\n=== UPDATING ",     "  - ",
    "\n=== REMOVING 2",  "\n=== CREATING ",    "\nCompleting batch",  "  Completing creation",
    "\n=== INTERMEDI",   "=== INTERMEDIATE",   "\n=== APPLYING FONT", "\n=== RESETTING ALL FONTS TO",
    "\n=== RE-APPLYING", "\n=== FINAL",        "\n=== NO FINAL",      "\n=== ALL PENDING",
    "\n>>> DOCK RESTART"};

} // namespace

TEST_F(Apply, BringsAPictureIntoLaunchpadAndTheDock) {
    add(kAtlas, 7);
    expectApplied();
    EXPECT_EQ(lookOf(kAtlas), restyled(kAtlas, 7));
    EXPECT_THAT(permanentIcons(kAtlas), ElementsAre(7));
    EXPECT_EQ(program->settings.getSelectedIcon(kAtlas), 0);
    EXPECT_EQ(program->backups.listBackups().size(), 1U);
    EXPECT_THAT(clock.waits(),
                ElementsAre(500ms, 100ms, 100ms, 200ms, 1s, 1s, 1s, 1s, 1s, 100ms, 100ms, 200ms, 500ms));
    EXPECT_THAT(linesLike(kMarks),
                ElementsAre("📦 Creating backup of Dock and Launchpad files...",
                            "📊 PRE-APPLY: Atlas has 0 permanent icons", "\n=== APPLYING PENDING CHANGES ===",
                            "Total steps calculated: 2", "Processing icon changes for Atlas",
                            "\n=== CREATING 1 NEW TAVRIK APPS ===", "  - Creating tavrik app for Atlas",
                            "\nCompleting batch creation...",
                            "\n>>> DOCK RESTART: Killing Dock process to refresh Launchpad and Dock...",
                            "  Completing creation for: Atlas", "\n=== FINAL DOCK RESTART ===",
                            "\n>>> DOCK RESTART: Killing Dock process to refresh Launchpad and Dock...",
                            "\n=== ALL PENDING CHANGES APPLIED ===\n"));
}

TEST_F(Apply, DoesAMixedRunInItsOrder) {
    // What an earlier apply has left: four wrappers, and a theme with two icons.
    for (const auto& [bundleID, number] : {std::pair(kAtlas, 1), {kInkwell, 2}, {kCinder, 3}, {kFerrule, 4}})
        add(bundleID, number);
    expectApplied();
    const auto theme = program->themes.createTheme("Dusk", false);
    const auto gone = program->themes.createTheme("Dawn", false);
    ASSERT_TRUE(theme && gone);
    ASSERT_TRUE(program->themes.addIcon(picture(20), kAtlas, *theme));
    ASSERT_TRUE(program->themes.addIcon(picture(21), kCinder, *theme));

    const std::string beacon = "com.example.lumen.beacon";
    const std::string gantry = "com.example.harbour.gantry";
    add(kAtlas, 11);
    add(kInkwell, 12);
    chooseNone(kCinder);
    chooseNone(kFerrule);
    add(beacon, 13);
    add(gantry, 14);
    add(kMissionControl, 15);
    pending().setPendingFont(kBold);
    pending().hideThemeIcon(theme->themeID, kAtlas + ".png");
    pending().deleteThemeIcon(theme->themeID, kCinder + ".png");
    pending().deleteTheme(gone->themeID);
    const ApplyPipeline::Preview preview = program->apply.preview(pending().staged());
    EXPECT_THAT(preview.obstacles, IsEmpty());
    EXPECT_EQ(preview.plan.dockRestarts(), 3);
    expectApplied();

    const std::string restart = "\n>>> DOCK RESTART: Killing Dock process to refresh Launchpad and Dock...";
    EXPECT_THAT(
        linesLike(kMarks),
        ElementsAre("📦 Creating backup of Dock and Launchpad files...",
                    "📊 PRE-APPLY: Atlas has 1 permanent icons", "📊 PRE-APPLY: Beacon has 0 permanent icons",
                    "📊 PRE-APPLY: Cinder has 1 permanent icons", "📊 PRE-APPLY: Ferrule has 1 permanent icons",
                    "📊 PRE-APPLY: Gantry has 0 permanent icons", "📊 PRE-APPLY: Inkwell has 1 permanent icons",
                    "📊 PRE-APPLY: Mission Control has 0 permanent icons", "\n=== APPLYING PENDING CHANGES ===",
                    "Total steps calculated: 10", "Processing icon changes for Atlas",
                    "Processing icon changes for Beacon", "Processing icon changes for Cinder",
                    "Processing icon changes for Ferrule", "Processing icon changes for Gantry",
                    "Processing icon changes for Inkwell", "Processing icon changes for Mission Control",
                    "\n=== UPDATING 2 EXISTING TAVRIK ICONS ===", "  - Updating icon for Atlas",
                    "  - Updating icon for Inkwell", "\n=== REMOVING 2 TAVRIK APPS ===", "  - Reverting Cinder",
                    "  - Reverting Ferrule", "\n=== CREATING 3 NEW TAVRIK APPS ===",
                    "  - Creating tavrik app for Beacon", "  - Creating tavrik app for Gantry",
                    "  - Creating tavrik app for Mission Control", "\nCompleting batch creation...", restart,
                    "  Completing creation for: Beacon", "  Completing creation for: Gantry",
                    "  Completing creation for: Mission Control", "\n=== INTERMEDIATE RESTART ===", restart,
                    "=== INTERMEDIATE RESTART COMPLETE ===", "\n=== APPLYING FONT: Mathematical Bold ===",
                    "\n=== FINAL DOCK RESTART ===", restart, "\n=== ALL PENDING CHANGES APPLIED ===\n"));

    for (const auto& [bundleID, number] :
         {std::pair(kAtlas, 11), {kInkwell, 12}, {beacon, 13}, {gantry, 14}, {kMissionControl, 15}}) {
        Look expected = restyled(bundleID, number);
        expected.title = styled(expected.title, kBold);
        EXPECT_EQ(lookOf(bundleID), expected);
    }
    EXPECT_FALSE(lookOf(kCinder).isWrapper);
    EXPECT_EQ(lookOf(kFerrule).title, styled("Ferrule", kBold));
    EXPECT_THAT(program->themes.installedThemes(), ElementsAre(*theme));
    EXPECT_THAT(program->themes.library().icons(theme->themeID), SizeIs(1));
    EXPECT_FALSE(program->hiddenThemeIcons.isOffered(theme->themeID, kAtlas));
}

TEST_F(Apply, ChangesTitlesAloneWithOneRestart) {
    pending().setPendingFont(kBold);
    expectApplied();
    EXPECT_THAT(linesLike(kMarks),
                ElementsAre("📦 Creating backup of Dock and Launchpad files...",
                            "\n=== APPLYING PENDING CHANGES ===", "Total steps calculated: 2",
                            "\n=== APPLYING FONT: Mathematical Bold ===", "\n=== FINAL DOCK RESTART ===",
                            "\n>>> DOCK RESTART: Killing Dock process to refresh Launchpad and Dock...",
                            "\n=== ALL PENDING CHANGES APPLIED ===\n"));
    EXPECT_EQ(lookOf(kAtlas).title, styled("Atlas", kBold));
    EXPECT_EQ(pending().activeFont(), kBold);

    pending().setPendingReset(true);
    expectApplied();
    EXPECT_EQ(volume.launchpadItems(), firstRows);
    EXPECT_EQ(pending().activeFont(), std::nullopt);
}

TEST_F(Apply, WritesTheActiveStyleOntoNewWrappers) {
    pending().setPendingFont(kBold);
    expectApplied();
    add(kCinder, 5);
    expectApplied();
    EXPECT_TRUE(log.has("\n=== RE-APPLYING ACTIVE FONT TO ALL APPS ==="));
    EXPECT_TRUE(log.has("=== INTERMEDIATE RESTART COMPLETE ==="));
    EXPECT_EQ(lookOf(kCinder).title, styled("Cinder", kBold));
    EXPECT_EQ(lookOf(kCinder).icon, 5);

    // Another icon makes no new wrapper, so that the titles are left alone.
    add(kCinder, 6);
    expectApplied();
    EXPECT_FALSE(log.has("\n=== RE-APPLYING ACTIVE FONT TO ALL APPS ==="));
    EXPECT_EQ(lookOf(kCinder).icon, 6);
}

TEST_F(Apply, KeepsTheChoiceOnItsIconWhenOneBeforeItGoes) {
    for (const int number : {1, 2, 3})
        add(kAtlas, number);
    expectApplied();
    EXPECT_EQ(program->settings.getSelectedIcon(kAtlas), 2);
    ASSERT_TRUE(pending().removeIcon(kAtlas, 1));
    expectApplied();
    EXPECT_THAT(permanentIcons(kAtlas), ElementsAre(1, 3));
    EXPECT_EQ(program->settings.getSelectedIcon(kAtlas), 1);
    EXPECT_EQ(lookOf(kAtlas).icon, 3);
    EXPECT_TRUE(log.has("  Deleting 1 marked icons for Atlas"));
    EXPECT_TRUE(log.has("  Permanent icons after cleanup: 2"));
    EXPECT_TRUE(log.has("  Saved selected index: 1"));
}

TEST_F(Apply, NeedsNoRestartForThemesAlone) {
    const auto theme = program->themes.createTheme("Dusk", false);
    ASSERT_TRUE(theme && program->themes.addIcon(picture(20), kAtlas, *theme));
    pending().hideThemeIcon(theme->themeID, kAtlas + ".png");
    expectApplied();
    EXPECT_TRUE(log.has("\n=== NO FINAL RESTART NEEDED ==="));
    EXPECT_FALSE(log.mentions("DOCK RESTART"));
    EXPECT_FALSE(program->hiddenThemeIcons.isOffered(theme->themeID, kAtlas));
}

TEST_F(Apply, PutsAThemesIconOntoTheWrapper) {
    const auto theme = program->themes.createTheme("Dusk", false);
    ASSERT_TRUE(theme && program->themes.addIcon(picture(33), kInkwell, *theme));
    add(kInkwell, 1);
    ASSERT_TRUE(pending().selectIcon(kInkwell, 1)) << "behind its one icon";
    expectApplied();
    EXPECT_EQ(lookOf(kInkwell), restyled(kInkwell, 33));
    EXPECT_THAT(permanentIcons(kInkwell), ElementsAre(1));
    EXPECT_EQ(program->settings.getSelectedIcon(kInkwell), 1);
}

TEST_F(Apply, PutsBackTheOneThatFailsAndKeepsTheOthers) {
    std::vector<std::string> apps;
    for (const LaunchpadItem& item : firstRows) {
        if (apps.size() < 10 && item.bundleID.starts_with("org.example."))
            apps.push_back(item.bundleID);
    }
    ASSERT_THAT(apps, SizeIs(10));
    for (std::size_t i = 0; i < apps.size(); ++i)
        add(apps[i], static_cast<int>(100 + i));
    const std::string& failing = apps[4];
    const MacPath wrapper = wrapperFolder(practice::kHome) /
                            std::ranges::find(firstRows, failing, &LaunchpadItem::bundleID)->path.name();
    session.setInterceptor([&](const MacPath& tool, const auto& arguments, const auto&) {
        const bool isIts = tool.name() == "lsregister" && arguments.back() == wrapper.string();
        return isIts
                   ? std::optional(Result<ToolResult>(ToolResult{.exitStatus = 1, .output = {}, .errors = {}}))
                   : std::nullopt;
    });

    const ApplyResult result = apply();
    EXPECT_EQ(result.end, ApplyResult::End::applied);
    ASSERT_THAT(result.failedApps, SizeIs(1));
    EXPECT_EQ(result.failedApps.front().bundleID, failing);
    EXPECT_THAT(result.deviations, IsEmpty());
    EXPECT_TRUE(log.has("\n⚠️ APPLY SUMMARY: Failed to theme 1 app(s)"));
    EXPECT_TRUE(log.has("🔄 Forcing complete reload due to 1 failed app(s)"));
    for (std::size_t i = 0; i < apps.size(); ++i) {
        EXPECT_EQ(lookOf(apps[i]).isWrapper, apps[i] != failing) << apps[i];
        if (apps[i] != failing) {
            EXPECT_EQ(lookOf(apps[i]).icon, static_cast<int>(100 + i));
        }
    }
    EXPECT_FALSE(mac.files.exists(wrapper));
    EXPECT_THAT(permanentIcons(failing), ElementsAre(104)) << "its icon is kept";
    EXPECT_EQ(program->settings.getSelectedIcon(failing), std::nullopt);
}

TEST_F(Apply, RefreshesWhatIsAppliedAndNothingElse) {
    add(kAtlas, 7);
    pending().setPendingFont(kBold);
    expectApplied();
    const Look applied = lookOf(kAtlas);
    const MacPath wrapper = wrapperFolder(practice::kHome) / "Atlas.app";
    ASSERT_TRUE(mac.workspace.clearIcon(wrapper));
    auto database = sqlite::Connection::open(volume.launchpadDatabase(), sqlite::OpenMode::readWrite);
    ASSERT_TRUE(database &&
                database->execute("UPDATE apps SET title = 'Atlas' WHERE bundleid = 'org.example.atlas'"));
    add(kInkwell, 8);

    EXPECT_EQ(manualRefresh(program->applyServices), 1U);
    EXPECT_EQ(lookOf(kAtlas), applied);
    EXPECT_FALSE(lookOf(kInkwell).isWrapper) << "that is only staged";
    EXPECT_TRUE(pending().hasPendingChanges());
    EXPECT_THAT(
        linesLike({"\n=== MANUAL", "Verifying", "Refreshed", "Re-applying active", "Restarting", "=== MANUAL"}),
        testing::IsSupersetOf({"\n=== MANUAL REFRESH INITIATED ===", "Verifying icon synchronization...",
                               "Refreshed icons for 1 tavrik app(s)",
                               "Re-applying active font: Mathematical Bold", "Restarting Dock/Launchpad...",
                               "=== MANUAL REFRESH COMPLETE ===\n"}));
}

TEST_F(Apply, ComesBackToTheBeginningByTheOriginalState) {
    add(kAtlas, 1);
    add(kMissionControl, 2);
    pending().setPendingFont("Small Caps");
    expectApplied();
    add(kAtlas, 3);
    expectApplied();
    ASSERT_TRUE(program->backups.restoreBackup(*program->backups.find("Original State")));
    program->launchpad.restartDock();
    clock.sleep(std::chrono::seconds(5));
    EXPECT_EQ(volume.launchpadItems(), firstRows);
    EXPECT_EQ(volume.pinnedTiles(), firstTiles);
}

} // namespace tavrik::test
