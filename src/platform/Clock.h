#pragma once

#include "platform/Date.h"

#include <chrono>

namespace tavrik {

/// Time. Every deliberate wait of the program goes through it.
class Clock {
public:
    virtual ~Clock() = default;

    virtual Date now() const = 0;

    /// Blocks the calling thread, which must not be the main one.
    virtual void sleep(std::chrono::milliseconds time) = 0;
};

/// The machine's own time.
class SystemClock : public Clock {
public:
    Date now() const override;
    void sleep(std::chrono::milliseconds time) override;
};

} // namespace tavrik
