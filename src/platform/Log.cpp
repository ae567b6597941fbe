#include "platform/Log.h"

#include "platform/Result.h"

#include <algorithm>
#include <mutex>
#include <utility>
#include <vector>

namespace tavrik {

namespace {

/// The one stream of the process. The lock is held while a line goes out, so that lines never interleave and no
/// listener is called once it is gone.
struct LogOutput {
    std::mutex mutex;
    std::FILE* stream = stdout;
    std::string before;
    std::string after;
    std::vector<const LogListener*> listeners;
};

/// Made by the first user and never ended, since lines may come while the program winds up.
LogOutput& logOutput() {
    static LogOutput& output = *new LogOutput;
    return output;
}

} // namespace

void log(std::string_view line) {
    LogOutput& to = logOutput();
    const std::lock_guard lock(to.mutex);
    if (to.stream) {
        const std::string text = (to.before + std::string(line)).append(to.after).append("\n");
        const bool printed =
            std::fwrite(text.data(), 1, text.size(), to.stream) == text.size() && std::fflush(to.stream) == 0;
        ignoreFailure(printed);
    }
    for (const LogListener* listener : to.listeners)
        listener->m_heard(line);
}

void setLogStream(std::FILE* stream, std::string_view before, std::string_view after) {
    LogOutput& to = logOutput();
    const std::lock_guard lock(to.mutex);
    to.stream = stream;
    to.before = before;
    to.after = after;
}

std::FILE* logStream() {
    LogOutput& to = logOutput();
    const std::lock_guard lock(to.mutex);
    return to.stream;
}

LogListener::LogListener(std::function<void(std::string_view)> heard) : m_heard(std::move(heard)) {
    LogOutput& to = logOutput();
    const std::lock_guard lock(to.mutex);
    to.listeners.push_back(this);
}

LogListener::~LogListener() {
    LogOutput& to = logOutput();
    const std::lock_guard lock(to.mutex);
    std::erase(to.listeners, this);
}

} // namespace tavrik
