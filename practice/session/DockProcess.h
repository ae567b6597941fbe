#pragma once

#include "platform/Path.h"
#include "platform/SpawnPlan.h"

#include <sys/types.h>

#include <mutex>

namespace tavrik::practice {

/// By this a Dock learns that its keeper is gone: it reads, and the keeper alone holds the writing end.
using Lifeline = Pipe;

/// One Dock as a child process. Waiting and killing may happen on two threads.
class DockProcess {
public:
    /// Starts the volume's Dock with the lifeline as its standard input. False when it cannot be started.
    bool start(const HostPath& root, const Lifeline& lifeline);

    /// Blocks until the process has ended, and reaps it. False when it failed or crashed; being told to end is
    /// no failure.
    bool wait();

    /// Kills the process unless it has been reaped; nobody else who was given its number meanwhile.
    void kill();

private:
    std::mutex m_mutex;
    pid_t m_number = 0; ///< 0 when there is none that has not been reaped
};

} // namespace tavrik::practice
