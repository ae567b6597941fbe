#pragma once

#include "platform/Alerts.h"

namespace tavrik::macos {

/// Asks by the Mac's own alerts: a sheet on the window in front, or a window of its own where there is none or
/// it has a sheet already. Return presses the first button, Escape one that is called "Cancel". The main
/// thread's loop goes on beneath it, so that the window lives on; nothing else of the program can be used
/// meanwhile.
///
/// A process that shows no windows, such as the companion, has its questions asked elsewhere.
class MacosAlerts : public Alerts {
public:
    explicit MacosAlerts(Alerts& elsewhere) : m_elsewhere(elsewhere) {}

    std::size_t ask(const Alert& alert) override;

private:
    Alerts& m_elsewhere;
};

} // namespace tavrik::macos
