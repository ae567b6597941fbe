#pragma once

#include "platform/Log.h"

#include <algorithm>
#include <cstddef>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace tavrik::test {

/// Collects every log line for as long as it lives. Any thread.
class LogRecorder {
public:
    std::vector<std::string> lines() const {
        const std::lock_guard lock(m_mutex);
        return m_lines;
    }

    /// How many lines are exactly this one.
    std::size_t count(std::string_view line) const {
        return static_cast<std::size_t>(std::ranges::count(lines(), line));
    }

    bool has(std::string_view line) const { return count(line) > 0; }

    /// Whether some line has this text in it.
    bool mentions(std::string_view text) const {
        return std::ranges::any_of(lines(), [text](const auto& line) { return line.find(text) != line.npos; });
    }

    void clear() {
        const std::lock_guard lock(m_mutex);
        m_lines.clear();
    }

private:
    void add(std::string_view line) {
        const std::lock_guard lock(m_mutex);
        m_lines.emplace_back(line);
    }

    mutable std::mutex m_mutex;
    std::vector<std::string> m_lines;
    // The last member: it must go before what it fills.
    LogListener m_listener{[this](std::string_view line) { add(line); }};
};

} // namespace tavrik::test
