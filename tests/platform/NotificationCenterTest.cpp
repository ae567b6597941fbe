#include "platform/NotificationCenter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <optional>
#include <thread>
#include <vector>

namespace tavrik::test {

using testing::ElementsAre;

TEST(NotificationCenter, CallsTheObserversOfANameInOrderUntilTheyEnd) {
    NotificationCenter centre;
    std::vector<int> heard;
    const auto note = [&heard](int number) { return [&heard, number] { heard.push_back(number); }; };
    auto first = centre.observe("Changed", note(1));
    auto other = centre.observe("Other", note(2));
    std::optional second = centre.observe("Changed", note(3));
    centre.post("Changed");
    second.reset();
    centre.post("Changed");
    EXPECT_THAT(heard, ElementsAre(1, 3, 1));

    first = std::move(other); // ends what it observed before
    centre.post("Changed");
    centre.post("Other");
    EXPECT_THAT(heard, ElementsAre(1, 3, 1, 2));
}

TEST(NotificationCenter, ObserversMayPostAndEndEachOtherAndThemselves) {
    std::vector<int> heard;
    std::optional<NotificationCenter> centre(std::in_place);
    std::optional<NotificationCenter::Observation> first;
    std::optional<NotificationCenter::Observation> second;
    first = centre->observe("Changed", [&] {
        heard.push_back(1);
        second.reset();
        first.reset();
        centre->post("Changed");
    });
    second = centre->observe("Changed", [&] { heard.push_back(2); });
    auto third = centre->observe("Changed", [&] { heard.push_back(3); });
    centre->post("Changed");
    EXPECT_THAT(heard, ElementsAre(1, 3, 3));
    centre.reset(); // before the observation that is left
}

TEST(NotificationCenter, AnObserverIsNoLongerRunningOnceItsObservationIsGone) {
    NotificationCenter centre;
    std::atomic<bool> running = false;
    std::atomic<bool> finished = false;
    std::optional observation = centre.observe("Changed", [&] {
        running = true;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        finished = true;
    });
    std::thread poster([&] { centre.post("Changed"); });
    while (!running)
        std::this_thread::yield();
    observation.reset();
    EXPECT_TRUE(finished);
    poster.join();
}

} // namespace tavrik::test
