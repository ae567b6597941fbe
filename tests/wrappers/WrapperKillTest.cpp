#include "support/practice/Killing.h"
#include "wrappers/WrapperStage.h"

#include <functional>

namespace tavrik::test {

namespace {

struct Kills : WrapperStage {
    using Work = std::function<void()>;

    /// False when the work was over before the change of that number.
    bool killedBefore(std::size_t change, const Work& work) {
        const bool wasKilled = isKilledBefore(*this, change, work);
        start();
        return wasKilled;
    }

    void create(const ApplicationInfo& app) {
        program->settings.setSelectedIcon(app.bundleID, 0);
        EXPECT_TRUE(wrappers().createWrapper(app, redIcon()));
    }

    void remove(const ApplicationInfo& app) { wrappers().removeWrapper(app, RestartDock::yes); }

    /// Every kill point of the work, or every so many of them.
    void sweep(std::size_t stride, const Work& work, const std::function<void(std::size_t)>& afterKill) {
        std::size_t change = 1;
        for (; !HasFailure() && killedBefore(change, work); change += stride) {
            SCOPED_TRACE("killed before change " + std::to_string(change));
            afterKill(change);
        }
        EXPECT_GT(change, 25u) << "too few changes were seen to mean anything";
    }
};

} // namespace

TEST_F(Kills, ARepeatedCreationReachesItsEndAndARemovalUndoesItFromEveryPoint) {
    for (const auto& [app, stride] : {std::pair(atlas, 1u), std::pair(tips, 5u)})
        for (const bool isRepeated : {true, false}) {
            SCOPED_TRACE(app.name + (isRepeated ? " created again" : " removed"));
            sweep(
                stride, [&] { EXPECT_TRUE(wrappers().createWrapper(app, redIcon())); },
                [&](std::size_t) {
                    if (isRepeated) {
                        create(app);
                        expectSwapped(app);
                    }
                    remove(app);
                    expectUntouched(app);
                });
            remove(app);
            expectUntouched(app);
        }
}

TEST_F(Kills, ARepeatedRemovalReachesItsEndFromEveryPoint) {
    for (const auto& [app, stride] : {std::pair(atlas, 1u), std::pair(tips, 5u)}) {
        SCOPED_TRACE(app.name);
        create(app);
        sweep(
            stride, [&] { remove(app); },
            [&](std::size_t change) {
                remove(app);
                expectUntouched(app);
                create(app);
                // Every other time a creation follows the kill, as when the person changes their mind.
                if (change % 2 == 0 && killedBefore(change, [&] { remove(app); }))
                    create(app);
                expectSwapped(app);
            });
        expectUntouched(app);
    }
}

} // namespace tavrik::test
