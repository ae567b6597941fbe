#pragma once

#include "platform/Path.h"

#include <memory>

namespace tavrik::practice {

/// The session keeper of a practice Mac, in real time: starts the volume's Dock as a child process and starts
/// it again whenever it ends. Of several programs on one volume only one keeps the session; another takes over
/// when it ends. The Dock ends when the keeper's process ends, however that ends, since it watches a pipe that
/// only the keeper holds. A Dock that cannot be started or fails at once several times running is given up,
/// with a line on the standard error.
class Session {
public:
    /// Returns when the volume's Dock runs, whoever keeps it, or after three seconds without one. Made before
    /// other threads start children, so that none of them can inherit the pipe.
    explicit Session(HostPath root);
    /// Ends the Dock that this session keeps and waits until it is gone; one that does not hear is killed after
    /// two seconds.
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace tavrik::practice
