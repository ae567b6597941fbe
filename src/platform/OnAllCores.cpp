#include "platform/OnAllCores.h"

#include "platform/ConcurrentQueue.h"

#include <algorithm>
#include <atomic>
#include <mutex>
#include <utility>

namespace tavrik {

Status onAllCores(std::size_t count, const std::function<Status(std::size_t)>& work) {
    std::atomic<std::size_t> next = 0;
    std::mutex mutex;
    std::pair<std::size_t, Status> first{count, Done{}};
    // Numbers are taken in order: when one fails, all below it are done or under way.
    const auto run = [&] {
        for (std::size_t number = next++; number < count; number = next++) {
            Status status = work(number);
            if (status)
                continue;
            next = count;
            const std::lock_guard lock(mutex);
            if (number < first.first)
                first = {number, std::move(status)};
        }
    };
    {
        ConcurrentQueue helpers("all cores");
        const std::size_t width = std::min<std::size_t>(count, ConcurrentQueue::defaultWidth());
        for (std::size_t helper = 1; helper < width; ++helper)
            helpers.async(run);
        run();
    }
    return first.second;
}

} // namespace tavrik
