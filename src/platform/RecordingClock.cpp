#include "platform/RecordingClock.h"

#include <algorithm>
#include <utility>

namespace tavrik {

RecordingClock::RecordingClock(Date start) : m_start(start) {}

Date RecordingClock::now() const {
    const std::lock_guard lock(m_mutex);
    return {m_start.sinceReference + std::chrono::duration<double>(m_elapsed).count()};
}

void RecordingClock::sleep(std::chrono::milliseconds time) {
    std::unique_lock lock(m_mutex);
    m_waits.push_back(time);
    const auto end = m_elapsed + time;
    while (!m_events.empty() && m_events.begin()->first <= end) {
        auto due = m_events.extract(m_events.begin());
        m_elapsed = std::max(m_elapsed, due.key());
        lock.unlock();
        due.mapped()();
        lock.lock();
    }
    m_elapsed = std::max(m_elapsed, end);
}

void RecordingClock::schedule(std::chrono::milliseconds after, std::function<void()> event) {
    const std::lock_guard lock(m_mutex);
    m_events.emplace(m_elapsed + after, std::move(event));
}

std::vector<std::chrono::milliseconds> RecordingClock::waits() const {
    const std::lock_guard lock(m_mutex);
    return m_waits;
}

void RecordingClock::forgetWaits() {
    const std::lock_guard lock(m_mutex);
    m_waits.clear();
}

} // namespace tavrik
