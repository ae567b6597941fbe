#include "BackupStage.h"
#include "support/practice/Killing.h"

namespace tavrik::test {
namespace {

/// A Launchpad that is styled and wrapped by the program itself.
struct LaunchpadCleaningTest : BackupStage {
    LaunchpadCleaningTest() {
        change("UPDATE groups SET title = 'XS iTunes' WHERE title = 'Utilities'");
        unstyled = rowsIn(snapshot());
    }

    Bytes snapshot() const { return *launchpadAt(kDatabase); }

    Bytes clean(Bytes database) { return backups().cleanLaunchpadDatabase(std::move(database)); }

    void remove(const ApplicationInfo& app) { managers->wrappers.removeWrapper(app, RestartDock::yes); }

    std::vector<std::string> unstyled;
};

TEST_F(LaunchpadCleaningTest, GivesBackTheUnstyledRowsOneByOne) {
    EXPECT_EQ(clean(snapshot()), snapshot());
    EXPECT_TRUE(log.has("  ℹ️ No styled names found in Launchpad database"));
    wrap(atlas);
    wrap(tips);
    for (const std::string font : {"", "Mathematical Bold", "Small Caps", "Negative Squared", "Circled"}) {
        SCOPED_TRACE(font);
        if (!font.empty())
            managers->fonts.applyFont(font);
        const Bytes before = snapshot();
        const Bytes cleaned = clean(before);
        EXPECT_THAT(rowsIn(cleaned), testing::ContainerEq(unstyled));
        EXPECT_EQ(cleaned[18], before[18]) << "the journal mode";
        EXPECT_EQ(clean(cleaned), cleaned);
        EXPECT_TRUE(log.has("1 hidden flag tavrik apps from backup"));
        EXPECT_THAT(*own.files.list(MacPath(practice::kTemporaryFolder)), testing::IsEmpty());
    }
    EXPECT_TRUE(log.has("  🧹 Cleaning hidden flag tavrik app: Tips"));
}

TEST_F(LaunchpadCleaningTest, SeesThroughEveryHalfDoneCreationAndRemoval) {
    for (const ApplicationInfo& app : {atlas, tips})
        for (const bool isRemoval : {false, true}) {
            std::size_t change = 1;
            for (bool wasKilled = true; wasKilled && !HasFailure(); ++change) {
                SCOPED_TRACE(app.name + " killed before change " + std::to_string(change));
                if (isRemoval)
                    wrap(app);
                wasKilled = isKilledBefore(*this, change, [&] { isRemoval ? remove(app) : wrap(app); });
                managers.emplace(mac);
                // Once the removal has forgotten a wrapper, its row is the Dock's to drop.
                const auto& wrappers = managers->wrappers;
                if (isRemoval && !wrappers.isUnfinished(app.bundleID) && !wrappers.hasWrapper(app.bundleID))
                    clock.sleep(std::chrono::seconds(10));
                EXPECT_THAT(rowsIn(clean(snapshot())), testing::ContainerEq(unstyled));
                remove(app);
                clock.sleep(std::chrono::seconds(10));
            }
            EXPECT_GT(change, 15u) << "too few changes were seen to mean anything";
        }
}

} // namespace
} // namespace tavrik::test
