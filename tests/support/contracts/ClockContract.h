#pragma once

#include "platform/Clock.h"

#include <gtest/gtest.h>

namespace tavrik::test {

/// What every clock promises. `Adapter` is default-constructible and has `Clock& clock()`.
template<typename Adapter>
class ClockContract : public testing::Test {
protected:
    Adapter adapter;
};

TYPED_TEST_SUITE_P(ClockContract);

TYPED_TEST_P(ClockContract, ASleepMovesTheTimeOnByAtLeastItself) {
    Clock& clock = this->adapter.clock();
    for (const int milliseconds : {0, 1, 25}) {
        const Date before = clock.now();
        clock.sleep(std::chrono::milliseconds(milliseconds));
        // A microsecond for the rounding of a date so far from its reference.
        EXPECT_GE(clock.now().sinceReference - before.sinceReference, milliseconds / 1000.0 - 1e-6);
    }
}

REGISTER_TYPED_TEST_SUITE_P(ClockContract, ASleepMovesTheTimeOnByAtLeastItself);

} // namespace tavrik::test
