#pragma once

#include "platform/Log.h"

#include <cstddef>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace tavrik::test {

/// Collects every log line for as long as it lives. Any thread.
class LogRecorder {
public:
    LogRecorder();

    std::vector<std::string> lines() const;

    /// How many lines are exactly this one.
    std::size_t count(std::string_view line) const;

    bool has(std::string_view line) const { return count(line) > 0; }

    /// Whether some line has this text in it.
    bool mentions(std::string_view text) const;

    void clear();

private:
    mutable std::mutex m_mutex;
    std::vector<std::string> m_lines;
    LogListener m_listener; // the last member: it must go before what it fills
};

} // namespace tavrik::test
