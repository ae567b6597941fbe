#include "cli/TerminalAlerts.h"

#include "cli/TerminalLog.h"
#include "platform/Log.h"

#include <unistd.h>

#include <charconv>
#include <iostream>
#include <string>

namespace tavrik {

namespace {

bool isTerminal() {
    return ::isatty(STDIN_FILENO) == 1 && ::isatty(STDOUT_FILENO) == 1;
}

} // namespace

std::size_t TerminalAlerts::ask(const Alert& alert) {
    if (m_pressesFirst)
        return 0;
    const std::size_t unanswered = alert.buttonWithoutAnswer();
    if (!isTerminal()) {
        log("Nobody can be asked \"" + alert.title + "\"" +
            (alert.buttons.empty() ? "" : "; taken for the answer: " + alert.buttons[unanswered]));
        return unanswered;
    }
    std::cout << eraseLine() << '\n' << alert.title << '\n' << alert.text << '\n';
    for (std::size_t i = 0; i < alert.buttons.size(); ++i)
        std::cout << "  " << i + 1 << "  " << alert.buttons[i] << '\n';
    for (std::string line; std::cout << "Type a number: " << std::flush && std::getline(std::cin, line);) {
        std::size_t number = 0;
        const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), number);
        if (error == std::errc() && end == line.data() + line.size() && number >= 1 &&
            number <= alert.buttons.size())
            return number - 1;
    }
    return unanswered;
}

} // namespace tavrik
