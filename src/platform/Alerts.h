#pragma once

#include <cstddef>
#include <optional>
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
    /// The button to take where nobody can be asked or no answer comes: one that loses nothing. The last one,
    /// unless this says another.
    std::optional<std::size_t> unanswered{};

    std::size_t buttonWithoutAnswer() const {
        return unanswered.value_or(buttons.empty() ? 0 : buttons.size() - 1);
    }
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
