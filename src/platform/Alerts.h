#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tavrik {

enum class AlertStyle { informational, warning, critical };

/// A question with titled buttons, the default one first.
struct Alert {
    std::string title;
    std::string text;
    std::vector<std::string> buttons;
    AlertStyle style = AlertStyle::warning;
};

/// Asks the person. The window, the terminal and the tests each answer in their own way.
class Alerts {
public:
    virtual ~Alerts() = default;

    /// Waits for the answer: the index of the chosen button. Any thread; the window's adapter hops to the main
    /// one.
    virtual std::size_t ask(const Alert& alert) = 0;
};

} // namespace tavrik
