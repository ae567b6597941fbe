#pragma once

#include "platform/DistributedNotifications.h"

namespace tavrik::macos {

/// Posts through the system's centre, to be delivered at once, also to programs that are suspended.
class MacosNotifications : public DistributedNotifications {
public:
    void post(const std::string& name) override;
};

} // namespace tavrik::macos
