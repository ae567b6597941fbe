#include "platform/ConcurrentQueue.h"

#include <algorithm>
#include <utility>

namespace tavrik {

namespace {

thread_local const ConcurrentQueue* current = nullptr;

} // namespace

ConcurrentQueue::ConcurrentQueue(std::string label, unsigned width)
    : m_label(std::move(label)),
      m_width(std::max(width, 1u)) {}

ConcurrentQueue::~ConcurrentQueue() {
    {
        const std::lock_guard lock(m_mutex);
        m_stopping = true;
    }
    m_changed.notify_all();
    for (std::thread& thread : m_threads)
        thread.join();
}

void ConcurrentQueue::async(std::function<void()> work) {
    {
        const std::lock_guard lock(m_mutex);
        m_works.push_back(std::move(work));
        // A work that is added while the queue winds up is left to the threads that are there: they are being
        // joined, and its adder, one of them, looks again before it ends.
        if (m_works.size() > m_idle && m_threads.size() < m_width && !m_stopping)
            m_threads.emplace_back([this] { run(); });
    }
    m_changed.notify_one();
}

unsigned ConcurrentQueue::defaultWidth() {
    return std::clamp(std::thread::hardware_concurrency(), 2u, 8u);
}

bool ConcurrentQueue::isCurrent() const {
    return current == this;
}

void ConcurrentQueue::run() {
    current = this;
    std::unique_lock lock(m_mutex);
    for (;;) {
        ++m_idle;
        m_changed.wait(lock, [this] { return m_stopping || !m_works.empty(); });
        --m_idle;
        if (m_works.empty())
            return;
        std::function<void()> work = std::move(m_works.front());
        m_works.pop_front();
        lock.unlock();
        work();
        work = nullptr; // what it holds on to goes now, outside the lock
        lock.lock();
    }
}

} // namespace tavrik
