#pragma once

#include "platform/Result.h"

#include <cstdio>
#include <string>
#include <string_view>

namespace tavrik {

/// Sends the log lines to standard output or standard error. When a person reads both at a terminal, the lines
/// are dimmed, so that the command's answer stands out among them; not when NO_COLOR is set or the terminal
/// knows no such thing. Files and other programs get the lines as they stand.
void sendLogTo(std::FILE* stream);

/// Appends the log lines to a file, to the end of the process. The error is a sentence, and nothing changed.
Status sendLogToFile(const std::string& file);

/// Begins the terminal's line anew, emptied. Nothing when no person reads standard output at a terminal that
/// can.
std::string_view eraseLine();

/// As long as it lives, log lines that go to standard output erase the line that is kept below them.
class LogAboveLine {
public:
    LogAboveLine();
    ~LogAboveLine();
    LogAboveLine(const LogAboveLine&) = delete;
    LogAboveLine& operator=(const LogAboveLine&) = delete;
};

} // namespace tavrik
