#pragma once

#include "platform/ConcurrentQueue.h"

#include <functional>
#include <string>

namespace tavrik {

/// A labelled queue over one worker thread: works run one at a time, in the order they were added. Destruction
/// runs what is queued, then joins.
class SerialQueue {
public:
    explicit SerialQueue(std::string label);

    const std::string& label() const { return m_queue.label(); }

    /// Adds a work and returns at once. Any thread.
    void async(std::function<void()> work);

    /// Adds a work and waits until it has run. Never from the queue's own thread.
    void sync(std::function<void()> work);

private:
    ConcurrentQueue m_queue; ///< of one work at a time
};

} // namespace tavrik
