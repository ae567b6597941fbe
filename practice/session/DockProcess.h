#pragma once

#include "platform/FileDescriptor.h"
#include "platform/Path.h"

#include <sys/types.h>

#include <mutex>
#include <optional>

namespace tavrik::practice {

/// The pipe by which a Dock learns that its keeper is gone. Neither end is handed to a child but the reading
/// end, on purpose, to the Dock.
struct Lifeline {
    Lifeline();

    FileDescriptor reading;
    FileDescriptor writing;
};

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
