#pragma once

#include "platform/Path.h"

#include <memory>

namespace tavrik::practice {

/// The session keeper of a practice Mac, in real time: starts the volume's Dock as a child process and starts
/// it again whenever it ends. Of several programs on one volume only one keeps the session; another takes over
/// when it ends. The Dock ends when the keeper's process ends, however that ends, since it watches a pipe that
/// only the keeper holds. Destruction ends the Dock and waits until it is gone.
class Session {
public:
    explicit Session(HostPath root);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace tavrik::practice
