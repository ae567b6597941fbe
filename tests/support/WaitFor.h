#pragma once

#include <chrono>
#include <thread>

namespace tavrik::test {

/// Waits until the predicate holds, looking every few milliseconds; false when the limit came first.
template<typename Predicate>
[[nodiscard]] bool waitFor(Predicate&& predicate, std::chrono::milliseconds limit = std::chrono::seconds(10)) {
    const auto deadline = std::chrono::steady_clock::now() + limit;
    while (!predicate()) {
        if (std::chrono::steady_clock::now() >= deadline)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return true;
}

} // namespace tavrik::test
