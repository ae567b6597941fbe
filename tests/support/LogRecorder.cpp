#include "support/LogRecorder.h"

#include <algorithm>

namespace tavrik::test {

LogRecorder::LogRecorder()
    : m_listener([this](std::string_view line) {
          const std::lock_guard lock(m_mutex);
          m_lines.emplace_back(line);
      }) {}

std::vector<std::string> LogRecorder::lines() const {
    const std::lock_guard lock(m_mutex);
    return m_lines;
}

std::size_t LogRecorder::count(std::string_view line) const {
    const std::lock_guard lock(m_mutex);
    return static_cast<std::size_t>(std::count(m_lines.begin(), m_lines.end(), line));
}

bool LogRecorder::mentions(std::string_view text) const {
    const std::lock_guard lock(m_mutex);
    return std::any_of(m_lines.begin(), m_lines.end(),
                       [text](const std::string& line) { return line.find(text) != std::string::npos; });
}

void LogRecorder::clear() {
    const std::lock_guard lock(m_mutex);
    m_lines.clear();
}

} // namespace tavrik::test
