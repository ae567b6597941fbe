#include "practice/session/DockProcess.h"

#include "platform/practice/Layout.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string>

namespace tavrik::practice {

namespace {

bool endedInOrder(int status) {
    if (WIFEXITED(status))
        return WEXITSTATUS(status) == 0;
    constexpr std::array kRequests{SIGTERM, SIGHUP, SIGINT, SIGQUIT, SIGKILL};
    return WIFSIGNALED(status) && std::ranges::find(kRequests, WTERMSIG(status)) != kRequests.end();
}

} // namespace

bool DockProcess::start(const HostPath& root, const Lifeline& lifeline) {
    const std::lock_guard lock(m_mutex);
    if (!lifeline.reading || !lifeline.writing)
        return false;
    SpawnPlan plan;
    plan.give(lifeline.reading.number(), STDIN_FILENO);
    plan.open("/dev/null", O_WRONLY, STDOUT_FILENO);
    plan.close(lifeline.writing.number());
    return !plan.start((root / kDockProgram.string()).string(), {}, m_number);
}

bool DockProcess::wait() {
    // First only looks, so that the number stays the child's own until nobody can kill it any more.
    siginfo_t seen{};
    while (::waitid(P_PID, static_cast<id_t>(m_number), &seen, WEXITED | WNOWAIT) != 0 && errno == EINTR) {
    }
    const std::lock_guard lock(m_mutex);
    int status = 0;
    pid_t reaped = 0;
    do
        reaped = ::waitpid(m_number, &status, 0);
    while (reaped < 0 && errno == EINTR);
    m_number = 0;
    return reaped > 0 && endedInOrder(status);
}

void DockProcess::kill() {
    const std::lock_guard lock(m_mutex);
    if (m_number > 0)
        ::kill(m_number, SIGKILL);
}

} // namespace tavrik::practice
