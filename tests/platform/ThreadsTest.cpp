#include "platform/Threads.h"

#include "platform/ChildProcess.h"
#include "platform/Clock.h"

#include <gtest/gtest.h>

#include <thread>

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
            {
                const MainThreadMayBlock over;
            }
            ignoreFailure(runChild(HostPath("/bin/true"), {}, {}));
        },
        "runChild must not run on the main thread");
    EXPECT_EXIT(
        {
            declareMainThread();
            std::thread([] { SystemClock().sleep({}); }).join();
            const MainThreadMayBlock startUp;
            SystemClock().sleep({});
            std::exit(isMainThread() ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
}

} // namespace tavrik::test
