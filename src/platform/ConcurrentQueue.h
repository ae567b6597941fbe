#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace tavrik {

/// A labelled queue whose works start in the order they were added and run side by side, on a few worker
/// threads that are started as they are needed. Destruction runs what is queued, then joins.
class ConcurrentQueue {
public:
    /// `width`: works that run at a time, at least 1.
    explicit ConcurrentQueue(std::string label, unsigned width = defaultWidth());
    ~ConcurrentQueue();
    ConcurrentQueue(const ConcurrentQueue&) = delete;
    ConcurrentQueue& operator=(const ConcurrentQueue&) = delete;

    const std::string& label() const { return m_label; }

    /// Adds a work and returns at once. Any thread.
    void async(std::function<void()> work);

    /// Whether the calling thread is one of the queue's own.
    bool isCurrent() const;

    /// The machine's cores, 2 to 8.
    static unsigned defaultWidth();

private:
    void run();

    const std::string m_label;
    const unsigned m_width;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<std::function<void()>> m_works;
    unsigned m_idle = 0;
    bool m_stopping = false;
    std::vector<std::thread> m_threads;
};

} // namespace tavrik
