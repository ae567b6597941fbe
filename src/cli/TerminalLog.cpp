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

bool canDim() {
    const std::string_view terminal = variable("TERM");
    return variable("NO_COLOR").empty() && !terminal.empty() && terminal != "dumb";
}

} // namespace

void sendLogTo(std::FILE* stream) {
    if (isReadByAPerson(stream) && canDim())
        setLogStream(stream, kFaint, kPlain);
    else
        setLogStream(stream);
}

bool setLogAbove(std::string_view erase) {
    if (!isReadByAPerson(stdout) || !canDim())
        return false;
    setLogStream(stdout, std::string(erase).append(kFaint), kPlain);
    return true;
}

} // namespace tavrik
