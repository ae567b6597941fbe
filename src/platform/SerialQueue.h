#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

namespace tavrik {

/// A labelled queue over one worker thread: works run one at a time, in the order they were added. Destruction
/// runs what is queued, then joins.
class SerialQueue {
public:
    explicit SerialQueue(std::string label);
    ~SerialQueue();
    SerialQueue(const SerialQueue&) = delete;
    SerialQueue& operator=(const SerialQueue&) = delete;

    const std::string& label() const { return m_label; }

    /// Adds a work and returns at once. Any thread.
    void async(std::function<void()> work);

    /// Adds a work and waits until it has run. Never from the queue's own thread.
    void sync(std::function<void()> work);

private:
    void run();

    const std::string m_label;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<std::function<void()>> m_works;
    bool m_stopping = false;
    std::thread m_thread;
};

} // namespace tavrik
