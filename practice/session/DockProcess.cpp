#include "practice/session/DockProcess.h"

#include "platform/practice/Layout.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string>

extern char** environ;

namespace tavrik::practice {

namespace {

/// How the Dock is started: the lifeline to read, nothing to print to, a process group of its own, so that a
/// terminal's interrupt is not for it, and signals as a fresh program expects them.
class DockSpawn {
public:
    explicit DockSpawn(const Lifeline& lifeline) {
        note(::posix_spawn_file_actions_init(&m_actions));
        note(::posix_spawnattr_init(&m_attributes));
        note(::posix_spawn_file_actions_adddup2(&m_actions, lifeline.reading.number(), STDIN_FILENO));
        note(::posix_spawn_file_actions_addopen(&m_actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0));
        note(::posix_spawn_file_actions_addclose(&m_actions, lifeline.writing.number()));
        sigset_t signals;
        sigemptyset(&signals);
        note(::posix_spawnattr_setsigmask(&m_attributes, &signals));
        sigfillset(&signals);
        sigdelset(&signals, SIGKILL);
        sigdelset(&signals, SIGSTOP);
        note(::posix_spawnattr_setsigdefault(&m_attributes, &signals));
        note(::posix_spawnattr_setpgroup(&m_attributes, 0));
        note(::posix_spawnattr_setflags(
            &m_attributes,
            static_cast<short>(POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF)));
    }

    ~DockSpawn() {
        ::posix_spawnattr_destroy(&m_attributes);
        ::posix_spawn_file_actions_destroy(&m_actions);
    }

    DockSpawn(const DockSpawn&) = delete;
    DockSpawn& operator=(const DockSpawn&) = delete;

    bool start(std::string program, pid_t& number) const {
        char* arguments[] = {program.data(), nullptr};
        return m_isSound &&
               ::posix_spawn(&number, program.c_str(), &m_actions, &m_attributes, arguments, environ) == 0;
    }

private:
    void note(int outcome) { m_isSound = m_isSound && outcome == 0; }

    posix_spawn_file_actions_t m_actions;
    posix_spawnattr_t m_attributes;
    bool m_isSound = true;
};

bool endedInOrder(int status) {
    if (WIFEXITED(status))
        return WEXITSTATUS(status) == 0;
    constexpr std::array kRequests{SIGTERM, SIGHUP, SIGINT, SIGQUIT, SIGKILL};
    return WIFSIGNALED(status) && std::ranges::find(kRequests, WTERMSIG(status)) != kRequests.end();
}

} // namespace

Lifeline::Lifeline() {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0)
        return;
    const FileDescriptor first(ends[0]);
    const FileDescriptor second(ends[1]);
    // Numbers above the three standard ones, so that the Dock's own three overwrite none of them.
    reading = FileDescriptor(::fcntl(first.number(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
    writing = FileDescriptor(::fcntl(second.number(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

bool DockProcess::start(const HostPath& root, const Lifeline& lifeline) {
    const std::lock_guard lock(m_mutex);
    if (!lifeline.reading || !lifeline.writing)
        return false;
    return DockSpawn(lifeline).start((root / kDockProgram.string()).string(), m_number);
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
