#include "RestoreStage.h"

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>

using namespace tavrik;
using namespace tavrik::test;

namespace {

/// A restore that ends at one of its file operations, and what is to be found then.
class RestoreFaults : public RestoreStage {
protected:
    /// Of both stores, the wrappers, the settings and what is staged.
    auto state() {
        return std::tuple(treeOf(own.files, kDatabase.parent()), treeOf(own.files, kDockFile.parent()),
                          treeOf(own.files, kWrappers), managers->settings.loadSettings(),
                          managers->pendingChanges.hasRecoverableChanges());
    }

    bool isRestored() const {
        return fileAt(kDockFile) == plain.dockPlist && launchpadAt(kDatabase) == plain.launchpadDatabase;
    }

    /// Either store is as before, or in its safety copy, or both are the backup's; and each backup opens and
    /// shows the Mac without the program.
    void expectNothingLost(bool mayBeUncleaned) {
        const bool isOver = isRestored();
        const auto& [dockPlist, launchpad] = styled;
        EXPECT_TRUE(isOver || fileAt(kDockFile) == dockPlist || fileAt(dockCopy) == dockPlist);
        EXPECT_TRUE(isOver || launchpadAt(kDatabase) == launchpad || launchpadAt(databaseCopy) == launchpad);
        for (const MacPath& each : backups().listBackups())
            EXPECT_TRUE(differences(*summaryOf(plain), *summaryOf(contents(each))).empty() || mayBeUncleaned);
    }

    /// Ends each operation of a restore in turn in the given way, until one gets by without it. An earlier
    /// restore may have failed when it was about to make a file. Where the disk may refuse the temporary copy
    /// of the present state, that is kept uncleaned.
    void sweep(const MacPath& failedBefore, bool mayBeUncleaned,
               const std::function<bool(std::size_t)>& endsAt) {
        setLogStream(nullptr);
        startOver();
        EXPECT_TRUE(restore());
        const auto end = state();
        std::size_t number = 1;
        for (; !HasFailure(); ++number) {
            SCOPED_TRACE("after " + failedBefore.string() + " at operation " + std::to_string(number));
            startOver();
            if (!failedBefore.empty())
                failAt(failedBefore, plain);
            if (!endsAt(number))
                break;
            files.failNothing();
            managers.emplace(mac);
            expectNothingLost(mayBeUncleaned);
            const Status again = restore();
            EXPECT_TRUE(again) << again.error().description;
            EXPECT_EQ(state(), end);
        }
        EXPECT_GT(number, 60u) << "too few operations were seen to mean anything";
        setLogStream(stdout);
    }
};

TEST_F(RestoreFaults, AKillAtAnyOperationLosesNothingAndARepeatFinishes) {
    for (const MacPath& before : {MacPath(), newDatabase})
        sweep(before, false, [this](std::size_t number) {
            const pid_t child = ::fork();
            if (child == 0) {
                files.forget();
                files.setRule([&](const FileOperation& operation) -> std::optional<int> {
                    return operation.number == number ? ::kill(::getpid(), SIGKILL) : std::optional<int>();
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
    for (const auto& [code, times] : {std::pair(EIO, Times::once), std::pair(ENOSPC, Times::forGood)})
        sweep({}, true, [&](std::size_t number) {
            files.forget();
            files.failAt(number, code, times);
            EXPECT_TRUE(!restore() || isRestored()) << "a restore that says so is done";
            return files.count() >= number;
        });
}

} // namespace
