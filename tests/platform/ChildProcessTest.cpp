#include "platform/ChildProcess.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <thread>

namespace tavrik::test {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

Result<ToolResult> shell(const std::string& script, const ToolLimits& limits = {}) {
    return runChild(HostPath("/bin/sh"), {"-c", script}, limits);
}

int openDescriptors() {
    int count = 0;
    for (int number = 0; number < 1024; ++number)
        count += ::fcntl(number, F_GETFD) >= 0 ? 1 : 0;
    return count;
}

} // namespace

TEST(ChildProcess, TellsHowTheChildEndedAndWhatItSaid) {
    struct Case {
        const char* script;
        int exitStatus;
        const char* output;
        const char* errors;
    };

    const Case cases[] = {
        {"exit 0", 0, "", ""},
        {"echo out; echo wrong >&2; exit 3", 3, "out\n", "wrong\n"},
        {"kill -KILL $$", 128 + SIGKILL, "", ""},
        {"cat; echo $0", 0, "/bin/sh\n", ""},            // nothing to read
        {"exec >&- 2>&-; sleep 0.1; exit 7", 7, "", ""}, // both outputs closed early
    };
    for (const Case& each : cases) {
        const auto result = shell(each.script);
        ASSERT_TRUE(result) << each.script;
        EXPECT_EQ(result->exitStatus, each.exitStatus) << each.script;
        EXPECT_EQ(result->output, each.output) << each.script;
        EXPECT_EQ(result->errors, each.errors) << each.script;
    }
}

TEST(ChildProcess, HandsArgumentsOverAsTheyStand) {
    const std::vector<std::string> odd{"", "a b", "$(exit)", "'\"\\", "-n", "é\n"};
    std::vector<std::string> arguments{"-c", "printf '[%s]' \"$@\"", "sh"};
    arguments.insert(arguments.end(), odd.begin(), odd.end());
    const auto result = runChild(HostPath("/bin/sh"), arguments, {});
    ASSERT_TRUE(result);
    EXPECT_EQ(result->output, "[][a b][$(exit)]['\"\\][-n][é\n]");
    EXPECT_EQ(runChild(HostPath("/bin/echo"), {std::string("a\0b", 3)}, {}).error().code, EINVAL);
}

TEST(ChildProcess, SaysWhyAProgramCannotBeStarted) {
    EXPECT_EQ(runChild(HostPath("/no/such/program"), {}, {}).error().code, ENOENT);
    EXPECT_EQ(runChild(HostPath("/etc"), {}, {}).error().code, EACCES);
}

TEST(ChildProcess, ReadsAFloodOnBothOutputsAndKeepsItsStart) {
    const auto result =
        shell("echo start; head -c 5000000 /dev/zero; echo start >&2; head -c 5000000 /dev/zero >&2",
              {.outputBytes = 1000});
    ASSERT_TRUE(result);
    EXPECT_EQ(result->exitStatus, 0);
    for (const std::string& kept : {result->output, result->errors}) {
        EXPECT_EQ(kept.size(), 1000u);
        EXPECT_TRUE(kept.starts_with("start\n"));
    }
}

TEST(ChildProcess, KillsWhatDoesNotEndInTimeWithAllThatItStarted) {
    const char* const endless[] = {"sleep 60 & wait", "trap '' TERM; exec >&- 2>&-; sleep 60 & sleep 60",
                                   "while :; do echo flood; done"};
    for (const char* script : endless) {
        // Everything that the child starts holds the writing end; when all of it is gone, reading comes to an
        // end.
        int held[2];
        ASSERT_EQ(::pipe(held), 0);
        const auto result = shell(script, {.time = milliseconds(200)});
        ::close(held[1]);
        EXPECT_FALSE(result) << script;
        EXPECT_EQ(result.error().code, ETIMEDOUT) << script;
        pollfd ended{.fd = held[0], .events = POLLIN, .revents = 0};
        EXPECT_EQ(::poll(&ended, 1, 10'000), 1) << script;
        ::close(held[0]);
    }
}

TEST(ChildProcess, DoesNotWaitForAGrandchildThatKeepsTheOutputsOpen) {
    const auto start = steady_clock::now();
    const auto result = shell("sleep 30 & echo $!; sleep 0.1; exit 4");
    ASSERT_TRUE(result);
    EXPECT_EQ(result->exitStatus, 4);
    EXPECT_LT(steady_clock::now() - start, std::chrono::seconds(10));
    EXPECT_EQ(::kill(std::atoi(result->output.c_str()), SIGKILL), 0);
}

TEST(ChildProcess, GivesTheChildSignalsAsAFreshProgramExpectsThem) {
    sigset_t blocked;
    sigset_t before;
    ::sigemptyset(&blocked);
    ::sigaddset(&blocked, SIGTERM);
    ::pthread_sigmask(SIG_BLOCK, &blocked, &before);
    const auto handler = std::signal(SIGHUP, SIG_IGN);
    const auto masked = shell("kill -TERM $$; exit 0");
    const auto ignored = shell("kill -HUP $$; exit 0");
    std::signal(SIGHUP, handler);
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    ASSERT_TRUE(masked && ignored);
    EXPECT_EQ(masked->exitStatus, 128 + SIGTERM);
    EXPECT_EQ(ignored->exitStatus, 128 + SIGHUP);
}

TEST(ChildProcess, RunsFromManyThreadsAtOnceAndLeavesNothingOpen) {
    const int before = openDescriptors();
    std::vector<std::thread> threads;
    std::atomic<int> right = 0;
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([&right, i] {
            for (int round = 0; round < 10; ++round) {
                const auto result = shell("echo " + std::to_string(i) + "; exit " + std::to_string(i));
                right +=
                    result && result->exitStatus == i && result->output == std::to_string(i) + "\n" ? 1 : 0;
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(right, 80);
    EXPECT_FALSE(runChild(HostPath("/no/such/program"), {}, {}));
    EXPECT_EQ(openDescriptors(), before);
}

} // namespace tavrik::test
