#pragma once

#include <cstdio>
#include <string_view>

namespace tavrik {

/// Sends the log lines to standard output or standard error. When a person reads both at a terminal, the lines
/// are dimmed, so that the command's answer stands out among them; not when NO_COLOR is set or the terminal
/// knows no such thing. Files and other programs get the lines as they stand.
void sendLogTo(std::FILE* stream);

/// Begins the terminal's line anew, emptied. Nothing when no person reads standard output at a terminal that
/// can.
std::string_view eraseLine();

/// For a line that is kept below the log on standard output: erases it before each log line. False, with
/// nothing changed, when no line can be erased.
bool setLogAboveLine();

} // namespace tavrik
