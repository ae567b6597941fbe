#include "platform/SerialQueue.h"

#include <cstdio>
#include <cstdlib>
#include <future>
#include <memory>
#include <utility>

namespace tavrik {

SerialQueue::SerialQueue(std::string label) : m_label(std::move(label)), m_thread([this] { run(); }) {}

SerialQueue::~SerialQueue() {
    {
        const std::lock_guard lock(m_mutex);
        m_stopping = true;
    }
    m_changed.notify_one();
    m_thread.join();
}

void SerialQueue::async(std::function<void()> work) {
    {
        const std::lock_guard lock(m_mutex);
        m_works.push_back(std::move(work));
    }
    m_changed.notify_one();
}

void SerialQueue::sync(std::function<void()> work) {
    if (std::this_thread::get_id() == m_thread.get_id()) {
        std::fprintf(stderr, "queue %s would wait for itself\n", m_label.c_str());
        std::abort();
    }
    // Shared, since the queue's thread may still be leaving the promise when this one goes on.
    const auto done = std::make_shared<std::promise<void>>();
    async([&work, done] {
        work();
        done->set_value();
    });
    done->get_future().wait();
}

void SerialQueue::run() {
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_stopping || !m_works.empty(); });
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
