#include "MaintenanceStage.h"
#include "support/practice/Killing.h"

#include <cstdlib>

namespace tavrik::test {

namespace {

class StartupKill : public MaintenanceStage {
protected:
    /// Something for each of the checks to do: an application deleted, changes staged, traces of a kill.
    void prepare() {
        ASSERT_TRUE(own.files.exists(MacPath("/Applications/Atlas.app")) ||
                    own.files.move(practice::kHome / "Kept.app", MacPath("/Applications/Atlas.app")));
        add(kAtlas, 1);
        if (!program->settings.getMapping(kCinder))
            add(kCinder, 3);
        expectApplied();
        add(kInkwell, 2);
        ASSERT_TRUE(own.files.move(MacPath("/Applications/Atlas.app"), practice::kHome / "Kept.app"));
        for (const MacPath& stray : {program->settings.appSupportURL() / "AppSettings.tmp",
                                     program->backups.backupsBaseURL() / "Original State.encrypted.new",
                                     MacPath(own.volume.temporaryFolder()) / "backup_check.db",
                                     program->iconStore.iconCacheURL() / kCinder / "icon_0.png.new"})
            ASSERT_TRUE(own.files.create(stray, bytesOf("cut")));
    }

    void expectEnd() {
        EXPECT_THAT(titlesAsked(), testing::Not(testing::Contains("Possible Layout Issue Detected")));
        const auto row = pending().iconRow(kInkwell).displayPaths();
        ASSERT_EQ(row.size(), 1U);
        EXPECT_EQ(colourOf(row.front()), 2);
        EXPECT_EQ(pending().iconRow(kInkwell).selectedIconIndex, 0);
        EXPECT_FALSE(own.files.exists(kWrappers / "Atlas.app"));
        EXPECT_FALSE(program->settings.getMapping(kAtlas) || program->settings.getSwapRecord(kAtlas));
        EXPECT_TRUE(own.files.exists(kWrappers / "Cinder.app") && program->settings.getMapping(kCinder));
        EXPECT_EQ(permanentIcons(kCinder), std::vector({3}));
        EXPECT_EQ(program->settings.getSelectedIcon(kCinder), 0);
        for (const auto& [path, what] : treeOf(own.files, program->settings.appSupportURL()))
            EXPECT_FALSE(path.ends_with(".new") || path.ends_with(".tmp")) << path;
        EXPECT_TRUE(own.files.list(MacPath(own.volume.temporaryFolder()))->empty());
        for (const MacPath& backup : program->backups.listBackups())
            EXPECT_TRUE(std::holds_alternative<BackupContents>(program->backups.readBackup(backup)));
    }
};

} // namespace

/// TAVRIK_STRIDE=1 kills at every change.
TEST_F(StartupKill, LosesNothingAndTheNextStartFinishes) {
    const char* wanted = std::getenv("TAVRIK_STRIDE");
    const std::size_t stride = wanted ? std::strtoul(wanted, nullptr, 10) : 9;
    std::size_t points = 0;
    bool wasKilled = true;
    for (std::size_t change = 1; wasKilled && !HasFailure(); change += stride) {
        SCOPED_TRACE("killed before change " + std::to_string(change));
        prepare();
        start();
        wasKilled = isKilledBefore(*this, change, [this] { maintenance().run(); });
        points += wasKilled;
        clock.sleep(std::chrono::seconds(5));
        startWithChecks();
        clock.sleep(std::chrono::seconds(5));
        expectEnd();
        pending().clearAllPendingChanges();
    }
    EXPECT_GT(points, 3U) << "too few changes were seen to mean anything";
}

} // namespace tavrik::test
