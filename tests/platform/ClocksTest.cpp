#include "platform/RecordingClock.h"
#include "support/contracts/ClockContract.h"

#include <gmock/gmock.h>

#include <string>
#include <thread>

namespace tavrik::test {

namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;

template<typename AnyClock>
struct Adapter {
    AnyClock own;

    Clock& clock() { return own; }
};

} // namespace

using Adapters = testing::Types<Adapter<SystemClock>, Adapter<RecordingClock>>;
INSTANTIATE_TYPED_TEST_SUITE_P(All, ClockContract, Adapters);

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

TEST(RecordingClock, AnEventMaySleepAndOtherThreadsMaySchedule) {
    RecordingClock clock(Date{0});
    std::vector<double> moments;
    clock.schedule(milliseconds(100), [&] {
        clock.sleep(milliseconds(300));
        moments.push_back(clock.now().sinceReference);
        std::thread([&] {
            clock.schedule(milliseconds(200), [&] { moments.push_back(clock.now().sinceReference); });
        }).join();
    });
    clock.sleep(milliseconds(350));
    EXPECT_EQ(clock.now(), Date{0.4});
    clock.sleep(milliseconds(600));
    EXPECT_THAT(moments, ElementsAre(0.4, 0.6));
    EXPECT_EQ(clock.now(), Date{1});
}

} // namespace tavrik::test
