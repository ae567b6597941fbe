#include "platform/NotificationCenter.h"

#include <algorithm>
#include <condition_variable>
#include <thread>
#include <utility>
#include <vector>

namespace tavrik {

namespace {

struct Observer {
    std::string name;
    std::function<void()> call;
    std::vector<std::thread::id> running; ///< the threads that are in `call` right now
};

} // namespace

/// Shared by the centre and, weakly, by its observations. No lock is held while an observer runs, so it may
/// post, observe and end observations itself.
struct NotificationCenter::Observers {
    std::mutex mutex;
    std::condition_variable returned;
    std::uint64_t lastID = 0;
    std::map<std::uint64_t, std::shared_ptr<Observer>> byID;

    std::vector<std::uint64_t> named(std::string_view name) {
        const std::lock_guard lock(mutex);
        std::vector<std::uint64_t> ids;
        for (const auto& [id, observer] : byID) {
            if (observer->name == name)
                ids.push_back(id);
        }
        return ids;
    }

    void run(std::uint64_t id) {
        std::unique_lock lock(mutex);
        const auto found = byID.find(id);
        if (found == byID.end())
            return;
        const std::shared_ptr<Observer> observer = found->second;
        observer->running.push_back(std::this_thread::get_id());
        lock.unlock();
        observer->call();
        lock.lock();
        observer->running.erase(
            std::find(observer->running.begin(), observer->running.end(), std::this_thread::get_id()));
        returned.notify_all();
    }

    void end(std::uint64_t id) {
        std::unique_lock lock(mutex);
        const auto found = byID.extract(id);
        if (found.empty())
            return;
        const std::shared_ptr<Observer>& observer = found.mapped();
        returned.wait(lock, [&observer] {
            return std::all_of(observer->running.begin(), observer->running.end(),
                               [](std::thread::id thread) { return thread == std::this_thread::get_id(); });
        });
    }
};

NotificationCenter::NotificationCenter() : m_observers(std::make_shared<Observers>()) {}

NotificationCenter::Observation NotificationCenter::observe(std::string name, std::function<void()> observer) {
    const std::lock_guard lock(m_observers->mutex);
    const std::uint64_t id = ++m_observers->lastID;
    m_observers->byID.emplace(id, std::make_shared<Observer>(std::move(name), std::move(observer)));
    return {m_observers, id};
}

void NotificationCenter::post(std::string_view name) {
    const std::shared_ptr<Observers> observers = m_observers; // an observer may end the centre
    for (const std::uint64_t id : observers->named(name))
        observers->run(id);
}

NotificationCenter::Observation::Observation(std::weak_ptr<Observers> observers, std::uint64_t id)
    : m_observers(std::move(observers)),
      m_id(id) {}

NotificationCenter::Observation::Observation(Observation&& other) noexcept
    : m_observers(std::exchange(other.m_observers, {})),
      m_id(std::exchange(other.m_id, 0)) {}

NotificationCenter::Observation& NotificationCenter::Observation::operator=(Observation&& other) noexcept {
    Observation taken(std::move(other)); // ends what was observed until now when it goes
    std::swap(m_observers, taken.m_observers);
    std::swap(m_id, taken.m_id);
    return *this;
}

NotificationCenter::Observation::~Observation() {
    if (const auto observers = m_observers.lock())
        observers->end(m_id);
}

} // namespace tavrik
