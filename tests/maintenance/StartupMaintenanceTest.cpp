#include "MaintenanceStage.h"

#include <random>

namespace tavrik::test {

namespace {

using StartupMaintenanceTest = MaintenanceStage;
using testing::ElementsAre;
using testing::IsEmpty;

} // namespace

TEST_F(StartupMaintenanceTest, AsksWhetherToRecoverAndDoesWhatIsAnswered) {
    for (const bool recovers : {true, false}) {
        add(kAtlas, 1);
        const auto row = pending().iconRow(kAtlas).displayPaths();
        alerts.answers = {recovers ? 0U : 1U};
        startWithChecks();
        ASSERT_EQ(alerts.asked.size(), 1U);
        const Alert& alert = alerts.asked.front();
        EXPECT_EQ(alert.title, "Recovered unsaved changes");
        EXPECT_EQ(alert.text, "Your previous session had unsaved changes. Do you want to recover them?");
        EXPECT_THAT(alert.buttons, ElementsAre("Recover", "Abandon"));
        EXPECT_EQ(alert.style, AlertStyle::informational);
        EXPECT_EQ(alert.buttonWithoutAnswer(), 0U) << "the other one would lose them";
        EXPECT_TRUE(log.has("   Found changes - showing recovery dialog"));
        EXPECT_EQ(pending().hasPendingChanges(), recovers);
        EXPECT_EQ(own.files.exists(pending().tempFileURL()), recovers);
        EXPECT_EQ(own.files.exists(row.front()), recovers);
        EXPECT_EQ(refreshed, 1);
        pending().clearAllPendingChanges();
    }
}

TEST_F(StartupMaintenanceTest, SettlesWhatNeedsNoQuestionAndLeavesAFileThatItCannotReadAlone) {
    const auto icon = program->iconStore.savePendingIcon(picture(1), kAtlas);
    const MacPath file = pending().tempFileURL();
    const std::string contents[] = {"", "<plist><dict><key>timestamp</key><real>1</real></dict></plist>",
                                    "bad"};
    for (const std::string& content : contents) {
        ASSERT_TRUE(content.empty() || own.files.write(file, bytesOf(content)));
        startWithChecks();
        EXPECT_THAT(alerts.asked, IsEmpty());
        EXPECT_TRUE(log.has("   No recoverable changes found"));
        EXPECT_EQ(own.files.exists(file), content == "bad");
        EXPECT_FALSE(own.files.exists(*icon)) << "nothing names it";
    }
    EXPECT_EQ(*own.files.read(file), Bytes({'b', 'a', 'd'}));
}

/// Applies, removals, styles, a few rearrangements, backups and restarts are no reason to ask anything.
TEST_F(StartupMaintenanceTest, AsksNothingAfterOrdinaryUse) {
    constexpr int kHistories = 100;
    std::mt19937 generator{20010101};
    const auto random = [&](std::size_t below) {
        return std::uniform_int_distribution<std::size_t>(0, below - 1)(generator);
    };
    const std::vector<std::string> apps = {kAtlas, kInkwell, kCinder, kFerrule, kMissionControl};
    std::vector<std::int64_t> pages;
    for (const LaunchpadItem& row : firstRows) {
        if (row.type == 3)
            pages.push_back(row.parent == 1 ? row.row : pages.empty() ? row.row : pages.front());
    }
    for (int history = 0; history < kHistories && !HasFailure(); ++history) {
        SCOPED_TRACE("history " + std::to_string(history));
        for (std::size_t steps = 1 + random(3); steps > 0; --steps) {
            const std::string& bundleID = apps[random(apps.size())];
            switch (random(12)) {
            case 0:
                restyle({{bundleID, history + 1}});
                break;
            case 1:
                chooseNone(bundleID);
                pending().setPendingFont("Small Caps");
                expectApplied();
                break;
            case 2:
            case 3:
                EXPECT_TRUE(program->backups.createBackup());
                break;
            case 4:
                program->launchpad.restartDock();
                clock.sleep(std::chrono::seconds(5));
                break;
            default:
                execute("UPDATE items SET parent_id = " + std::to_string(pages[random(pages.size())]) +
                        " WHERE rowid IN (SELECT item_id FROM apps ORDER BY item_id * " +
                        std::to_string(random(1000)) + " % 997 LIMIT 3)");
            }
        }
        startWithChecks();
        EXPECT_THAT(titlesAsked(), IsEmpty());
    }
}

} // namespace tavrik::test
