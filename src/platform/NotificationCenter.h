#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

namespace tavrik {

/// Plain string names inside the process ("PendingChangesUpdated"). Observers run on the posting thread, in the
/// order they were added, before `post` returns.
class NotificationCenter {
    struct Observers;

public:
    NotificationCenter();

    /// Ends the observation when it goes; may outlive the centre. Once it is gone the observer is not called
    /// any more and not running on another thread: going waits for that, so it must not hold what the observer
    /// waits for.
    class [[nodiscard]] Observation {
    public:
        Observation() = default;
        Observation(Observation&&) noexcept;
        Observation& operator=(Observation&&) noexcept;
        ~Observation();

    private:
        friend class NotificationCenter;
        Observation(std::weak_ptr<Observers> observers, std::uint64_t id);

        std::weak_ptr<Observers> m_observers;
        std::uint64_t m_id = 0;
    };

    Observation observe(std::string name, std::function<void()> observer);
    void post(std::string_view name);

private:
    std::shared_ptr<Observers> m_observers;
};

} // namespace tavrik
