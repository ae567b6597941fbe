#pragma once

#include "platform/Random.h"

#include <gtest/gtest.h>

#include <set>

namespace tavrik::test {

/// What every source of randomness promises. `Adapter` is default-constructible and has `Random& random()`.
template<typename Adapter>
class RandomContract : public testing::Test {
protected:
    Adapter adapter;
};

TYPED_TEST_SUITE_P(RandomContract);

TYPED_TEST_P(RandomContract, GivesAsManyFreshBytesAsAskedFor) {
    for (const std::size_t count : {0u, 1u, 255u, 256u, 257u, 2000u})
        EXPECT_EQ(this->adapter.random().bytes(count).size(), count);
    // Sixteen bytes that stay zero, or come twice, are no accident.
    std::set<Bytes> seen{Bytes(16)};
    const Bytes many = this->adapter.random().bytes(1600);
    for (auto at = many.begin(); at != many.end(); at += 16)
        EXPECT_TRUE(seen.insert(Bytes(at, at + 16)).second);
}

REGISTER_TYPED_TEST_SUITE_P(RandomContract, GivesAsManyFreshBytesAsAskedFor);

} // namespace tavrik::test
