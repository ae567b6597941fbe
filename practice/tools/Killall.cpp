#include "practice/tools/ToolFunctions.h"
#include "practice/tools/ToolText.h"

#include <signal.h>

#include <optional>
#include <string_view>

namespace tavrik::practice {

namespace {

struct SignalName {
    std::string_view name;
    int number;
};

constexpr SignalName kSignals[] = {
    {"HUP", SIGHUP},   {"INT", SIGINT},   {"QUIT", SIGQUIT}, {"KILL", SIGKILL}, {"TERM", SIGTERM},
    {"STOP", SIGSTOP}, {"CONT", SIGCONT}, {"USR1", SIGUSR1}, {"USR2", SIGUSR2},
};

/// "HUP", "SIGHUP" or the number.
std::optional<int> signalOf(std::string_view text) {
    if (text.starts_with("SIG"))
        text.remove_prefix(3);
    for (const auto& [name, number] : kSignals)
        if (text == name || text == std::to_string(number))
            return number;
    return std::nullopt;
}

ToolAnswer killallUsage() {
    return usage("usage: killall [-delmsqvz] [-help] [-I]\n"
                 "               [-u user] [-t tty] [-c cmd] [-SIGNAL] [cmd]...\n"
                 "At least one option or argument to specify processes must be given.\n");
}

} // namespace

ToolAnswer killall(const ToolSurroundings& surroundings, const Arguments& arguments) {
    auto name = arguments.begin();
    std::optional<int> signal = SIGTERM;
    if (name != arguments.end() && name->starts_with("-"))
        signal = signalOf(std::string_view(*name++).substr(1));
    if (!signal || name == arguments.end())
        return killallUsage();

    int reached = 0;
    for (; name != arguments.end(); ++name)
        reached += surroundings.signalProcesses(*name, *signal);
    if (reached > 0)
        return {};
    return {.exitStatus = 1, .output = {}, .errors = "No matching processes belonging to you were found\n"};
}

} // namespace tavrik::practice
