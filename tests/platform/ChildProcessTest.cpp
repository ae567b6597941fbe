#include "platform/ChildProcess.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <tuple>

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
    const int before = openDescriptors();
    const std::tuple<const char*, int, const char*, const char*> cases[] = {
        {"exit 0", 0, "", ""},
        {"echo out; echo wrong >&2; exit 3", 3, "out\n", "wrong\n"},
        {"kill -KILL $$", 128 + SIGKILL, "", ""},
        {"cat; echo $0", 0, "/bin/sh\n", ""},            // nothing to read
        {"exec >&- 2>&-; sleep 0.1; exit 7", 7, "", ""}, // both outputs closed early
    };
    for (const auto& [script, exitStatus, output, errors] : cases) {
        const auto result = shell(script);
        ASSERT_TRUE(result) << script;
        EXPECT_EQ(result->exitStatus, exitStatus) << script;
        EXPECT_EQ(result->output, output) << script;
        EXPECT_EQ(result->errors, errors) << script;
    }
    EXPECT_EQ(runChild(HostPath("/no/such/program"), {}, {}).error().code, ENOENT);
    EXPECT_EQ(runChild(HostPath("/etc"), {}, {}).error().code, EACCES);
    EXPECT_EQ(openDescriptors(), before);
}

TEST(ChildProcess, HandsArgumentsOverAsTheyStand) {
    const auto result =
        runChild(HostPath("/bin/sh"),
                 {"-c", "printf '[%s]' \"$@\"", "sh", "", "a b", "$(exit)", "'\"\\", "-n", "é\n"}, {});
    ASSERT_TRUE(result);
    EXPECT_EQ(result->output, "[][a b][$(exit)]['\"\\][-n][é\n]");
    EXPECT_EQ(runChild(HostPath("/bin/echo"), {std::string("a\0b", 3)}, {}).error().code, EINVAL);
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

} // namespace tavrik::test
