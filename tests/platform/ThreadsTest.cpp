#include "platform/Threads.h"

#include "platform/ChildProcess.h"
#include "platform/Clock.h"

#include <gtest/gtest.h>

namespace tavrik::test {

TEST(ThreadsDeathTest, TheMainThreadNeverSleepsNorWaitsForAChild) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(
        {
            declareMainThread();
            SystemClock().sleep({});
        },
        "SystemClock::sleep must not run on the main thread");
    EXPECT_DEATH(
        {
            declareMainThread();
            ignoreFailure(runChild(HostPath("/bin/true"), {}, {}));
        },
        "runChild must not run on the main thread");
}

} // namespace tavrik::test
