#include "backups/BackupSummary.h"
#include "backups/RestoreStage.h"

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>

using namespace tavrik;
using namespace tavrik::test;

namespace {

/// A restore that ends at one of its file operations, and what is to be found then.
struct RestoreFaults : RestoreStage {
    RestoreFaults() {
        setLogStream(nullptr);
        EXPECT_TRUE(restore());
        end = stateOf();
    }

    ~RestoreFaults() override { setLogStream(stdout); }

    struct State {
        FileTree launchpad, preferences, wrappers;
        plist::Dictionary settings;
        bool isAnythingStaged = false;

        bool operator==(const State&) const = default;
    };

    State stateOf() {
        return {treeOf(own.files, kDatabase.parent()), treeOf(own.files, kDockFile.parent()),
                treeOf(own.files, kWrappers), managers->settings.loadSettings(),
                managers->pendingChanges.hasRecoverableChanges()};
    }

    /// Either store is as before, or in its safety copy, or both are the backup's; and each backup opens and
    /// shows the Mac without the program.
    void expectNothingLost() {
        const bool isOver = fileAt(kDockFile) == known.plain.dockPlist &&
                            launchpadAt(kDatabase) == known.plain.launchpadDatabase;
        const auto& [dockPlist, launchpad] = known.styled;
        EXPECT_TRUE(isOver || fileAt(kDockFile) == dockPlist || fileAt(dockCopy) == dockPlist);
        EXPECT_TRUE(isOver || launchpadAt(kDatabase) == launchpad || launchpadAt(databaseCopy) == launchpad);
        for (const MacPath& backup : managers->backups.listBackups()) {
            const auto contents = managers->backups.readBackup(backup);
            ASSERT_TRUE(std::holds_alternative<BackupContents>(contents)) << backup.string();
            EXPECT_TRUE(mayBeUncleaned ||
                        differences(plain, *summaryOf(std::get<BackupContents>(contents))).empty());
        }
    }

    /// Ends each operation of a restore in turn in the given way, until one gets by without it. An earlier
    /// restore may have failed when it was about to make a file.
    void sweep(const MacPath& failedBefore, const std::function<bool(std::size_t)>& endsAt) {
        SCOPED_TRACE("after a failure at " + failedBefore.string());
        std::size_t number = 1;
        for (; !HasFailure(); ++number) {
            SCOPED_TRACE("at operation " + std::to_string(number));
            startOver();
            if (!failedBefore.empty())
                failAt(failedBefore);
            if (!endsAt(number))
                break;
            files.failNothing();
            managers.emplace(mac);
            expectNothingLost();
            const Status again = restore();
            EXPECT_TRUE(again) << again.error().description;
            EXPECT_TRUE(stateOf() == end);
        }
        EXPECT_GT(number, 60u) << "too few operations were seen to mean anything";
    }

    bool mayBeUncleaned = false; ///< the present state's snapshot, when the disk refused its temporary copy
    State end;
    const LayoutSummary plain = *summaryOf(known.plain);
};

TEST_F(RestoreFaults, AKillAtAnyOperationLosesNothingAndARepeatFinishes) {
    for (const MacPath& before : {MacPath(), newDatabase})
        sweep(before, [this](std::size_t number) {
            const pid_t child = ::fork();
            if (child == 0) {
                std::size_t seen = 0;
                files.setRule([&](const FileOperation&) -> std::optional<int> {
                    if (++seen == number)
                        ::kill(::getpid(), SIGKILL);
                    return std::nullopt;
                });
                ignoreFailure(restore());
                ::_exit(0);
            }
            int status = 0;
            EXPECT_EQ(::waitpid(child, &status, 0), child);
            return WIFSIGNALED(status);
        });
}

TEST_F(RestoreFaults, AFailureOfAnyOperationLosesNothingAndARepeatFinishes) {
    mayBeUncleaned = true;
    for (const auto& [code, times] : {std::pair(EIO, Times::once), std::pair(ENOSPC, Times::forGood)})
        sweep({}, [&](std::size_t number) {
            files.forget();
            files.failAt(number, code, times);
            ignoreFailure(restore());
            return files.count() >= number;
        });
}

} // namespace
