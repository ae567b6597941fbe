#pragma once

#include "platform/LocalNotifications.h"

namespace tavrik::macos {

/// Messages in the system's notification centre. The first one has the system ask the person whether Tavrik may
/// show any. A program outside a bundle has no place there and shows none.
class MacosLocalNotifications : public LocalNotifications {
public:
    void show(const LocalNotification& notification) override;
};

} // namespace tavrik::macos
