#include "platform/RecordingClock.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tavrik::test {

using std::chrono::milliseconds;
using testing::ElementsAre;

TEST(RecordingClock, RunsEventsInsideTheSleepThatReachesThemAtTheirOwnMoment) {
    RecordingClock clock(Date{1000});
    std::vector<std::pair<std::string, double>> ran;
    const auto note = [&](const char* name) {
        return [&, name] { ran.emplace_back(name, clock.now().sinceReference); };
    };
    clock.schedule(milliseconds(4000), note("indexed"));
    clock.schedule(milliseconds(500), [&] {
        note("restarted")();
        clock.schedule(milliseconds(250), note("further"));
        clock.schedule(milliseconds(3500), note("same moment, later"));
    });
    clock.sleep(milliseconds(499));
    EXPECT_TRUE(ran.empty());
    clock.sleep(milliseconds(3501));

    EXPECT_THAT(ran, ElementsAre(std::pair("restarted", 1000.5), std::pair("further", 1000.75),
                                 std::pair("indexed", 1004.0), std::pair("same moment, later", 1004.0)));
    EXPECT_EQ(clock.now(), Date{1004});
    EXPECT_THAT(clock.waits(), ElementsAre(milliseconds(499), milliseconds(3501)));
}

} // namespace tavrik::test
