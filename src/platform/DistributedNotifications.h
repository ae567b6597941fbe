#pragma once

#include <string>

namespace tavrik {

/// Notifications to other processes. Posting has no result and does not wait for anyone to hear it. Any thread.
class DistributedNotifications {
public:
    virtual ~DistributedNotifications() = default;

    /// With no object and no user info.
    virtual void post(const std::string& name) = 0;
};

} // namespace tavrik
