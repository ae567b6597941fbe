#include "platform/SerialQueue.h"

#include <cstdio>
#include <cstdlib>
#include <future>
#include <memory>
#include <utility>

namespace tavrik {

SerialQueue::SerialQueue(std::string label) : m_queue(std::move(label), 1) {}

void SerialQueue::async(std::function<void()> work) {
    m_queue.async(std::move(work));
}

void SerialQueue::sync(std::function<void()> work) {
    if (m_queue.isCurrent()) {
        std::fprintf(stderr, "queue %s would wait for itself\n", label().c_str());
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

} // namespace tavrik
