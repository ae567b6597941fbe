#pragma once

#include "platform/Clock.h"

#include <functional>
#include <map>
#include <mutex>
#include <vector>

namespace tavrik {

/// Virtual time: a sleep returns at once, is recorded, and moves the time on. What was scheduled for a moment
/// that a sleep reaches or passes runs inside that sleep, at its own moment and in order. Any thread.
class RecordingClock : public Clock {
public:
    explicit RecordingClock(Date start = Date{800'000'000});

    Date now() const override;
    void sleep(std::chrono::milliseconds time) override;

    /// Runs the event `after` the present moment: "the Dock indexes after 4 s". Events may schedule further
    /// ones.
    void schedule(std::chrono::milliseconds after, std::function<void()> event);

    /// Every sleep so far, in order.
    std::vector<std::chrono::milliseconds> waits() const;
    void forgetWaits();

private:
    mutable std::mutex m_mutex;
    Date m_start;
    std::chrono::milliseconds m_elapsed{0};
    std::vector<std::chrono::milliseconds> m_waits;
    std::multimap<std::chrono::milliseconds, std::function<void()>> m_events;
};

} // namespace tavrik
