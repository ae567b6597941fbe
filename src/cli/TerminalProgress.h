#pragma once

#include "cli/TerminalLog.h"
#include "platform/Log.h"
#include "platform/NotificationCenter.h"

#include <mutex>
#include <string>

namespace tavrik {

class ProgressOverlayManager;

/// As long as it lives: a bar with the status below the log lines, when a person reads standard output at a
/// terminal that can. Otherwise nothing.
class TerminalProgress {
public:
    TerminalProgress(ProgressOverlayManager& progress, NotificationCenter& notifications);
    ~TerminalProgress();
    TerminalProgress(const TerminalProgress&) = delete;
    TerminalProgress& operator=(const TerminalProgress&) = delete;

private:
    void update(const ProgressOverlayManager& progress);
    void draw();

    const LogAboveLine m_logAbove;
    const bool m_isShown;
    std::mutex m_mutex;
    std::string m_line;
    NotificationCenter::Observation m_observation;
    LogListener m_listener{[this](std::string_view) { draw(); }}; ///< the line has scrolled the bar away
};

} // namespace tavrik
