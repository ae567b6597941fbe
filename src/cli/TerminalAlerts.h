#pragma once

#include "platform/Alerts.h"

namespace tavrik {

/// Asks at the terminal: prints the question with its buttons numbered and waits for a number. Without a
/// terminal on standard input and output nobody can be asked: the answer is then the question's own for that
/// case, and a log line says so.
class TerminalAlerts : public Alerts {
public:
    std::size_t ask(const Alert& alert) override;

    /// From now on the first button is pressed unseen: the person has said so beforehand.
    void pressFirstButtons() { m_pressesFirst = true; }

private:
    bool m_pressesFirst = false;
};

} // namespace tavrik
