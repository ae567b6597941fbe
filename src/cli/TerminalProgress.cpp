#include "cli/TerminalProgress.h"

#include "changes/apply/ProgressOverlayManager.h"

#include <algorithm>
#include <cstdio>

namespace tavrik {

namespace {

constexpr int kWidth = 30; ///< characters of the bar

std::string barOf(double value, double total) {
    const double part = total > 0 ? std::clamp(value / total, 0.0, 1.0) : 0.0;
    const int full = static_cast<int>(part * kWidth);
    std::string bar = "[";
    for (int i = 0; i < kWidth; ++i)
        bar += i < full ? "█" : "·";
    return bar + "]";
}

} // namespace

TerminalProgress::TerminalProgress(ProgressOverlayManager& progress, NotificationCenter& notifications)
    : m_isShown(!eraseLine().empty()) {
    if (m_isShown)
        m_observation =
            notifications.observe(std::string(kProgressUpdated), [this, &progress] { update(progress); });
}

TerminalProgress::~TerminalProgress() {
    if (!m_isShown)
        return;
    m_observation = {};
    {
        const std::lock_guard lock(m_mutex);
        m_line.clear();
    }
    draw();
}

void TerminalProgress::update(const ProgressOverlayManager& progress) {
    {
        const std::lock_guard lock(m_mutex);
        m_line = progress.isShown()
                     ? barOf(progress.progressValue(), progress.totalSteps()) + " " + progress.currentStatus()
                     : std::string();
    }
    draw();
}

void TerminalProgress::draw() {
    if (!m_isShown)
        return;
    const std::lock_guard lock(m_mutex);
    std::fprintf(stdout, "%s%s", eraseLine().data(), m_line.c_str());
    std::fflush(stdout);
}

} // namespace tavrik
