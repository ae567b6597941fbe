#include "cli/TerminalLog.h"

#include "platform/Log.h"

#include <unistd.h>

#include <cstdlib>
#include <string>
#include <string_view>

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

std::string_view eraseLine() {
    return isReadByAPerson(stdout) && knowsControls() ? "\r\033[K" : "";
}

bool setLogAboveLine() {
    if (eraseLine().empty())
        return false;
    setLogStream(stdout, std::string(eraseLine()).append(kFaint), kPlain);
    return true;
}

} // namespace tavrik
