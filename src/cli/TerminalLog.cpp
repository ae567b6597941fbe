#include "cli/TerminalLog.h"

#include "platform/Log.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string>
#include <string_view>
#include <system_error>

namespace tavrik {

namespace {

constexpr std::string_view kFaint = "\033[2m";
constexpr std::string_view kPlain = "\033[0m";

/// A variable that is set but empty counts as not set.
std::string_view variable(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

bool isReadByAPerson(std::FILE* stream) {
    return ::isatty(STDOUT_FILENO) == 1 && ::isatty(::fileno(stream)) == 1;
}

/// Dimming, and erasing a line.
bool knowsControls() {
    const std::string_view terminal = variable("TERM");
    return variable("NO_COLOR").empty() && !terminal.empty() && terminal != "dumb";
}

} // namespace

void sendLogTo(std::FILE* stream) {
    if (isReadByAPerson(stream) && knowsControls())
        setLogStream(stream, kFaint, kPlain);
    else
        setLogStream(stream);
}

Status sendLogToFile(const std::string& file) {
    // Not for the programs that are started: the Dock outlives this one.
    const int descriptor = ::open(file.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
    std::FILE* stream = descriptor < 0 ? nullptr : ::fdopen(descriptor, "a");
    if (!stream)
        return Error{file + ": the log cannot be written there: " + std::generic_category().message(errno) +
                     "."};
    setLogStream(stream);
    return Done{};
}

std::string_view eraseLine() {
    return isReadByAPerson(stdout) && knowsControls() ? "\r\033[K" : "";
}

LogAboveLine::LogAboveLine() {
    if (logStream() == stdout && !eraseLine().empty())
        setLogStream(stdout, std::string(eraseLine()).append(kFaint), kPlain);
}

LogAboveLine::~LogAboveLine() {
    if (logStream() == stdout)
        sendLogTo(stdout);
}

} // namespace tavrik
