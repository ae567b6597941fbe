#pragma once

#include <cstdio>
#include <functional>
#include <string>
#include <string_view>

namespace tavrik {

/// Prints one line to the log stream (standard output unless set otherwise) and hands it to every listener. The
/// text is printed as it stands, leading blanks and line breaks included, followed by one line break. Any
/// thread; lines never interleave.
void log(std::string_view line);

/// Sends the lines to another stream, for a companion whose standard output is for programs. Null silences
/// them. What a terminal needs to show them apart is put before and after each; listeners do not hear it.
void setLogStream(std::FILE* stream, std::string_view before = {}, std::string_view after = {});

/// Where they go now.
std::FILE* logStream();

/// Hears every line for as long as it lives. Called on the logging thread, one line at a time; must not log
/// itself.
class LogListener {
public:
    explicit LogListener(std::function<void(std::string_view)> heard);
    ~LogListener();
    LogListener(const LogListener&) = delete;
    LogListener& operator=(const LogListener&) = delete;

private:
    std::function<void(std::string_view)> m_heard;

    friend void log(std::string_view line);
};

} // namespace tavrik
