#pragma once

#include <string>

namespace tavrik {

/// A message beside the other programs' ones, for a person who is looking elsewhere.
struct LocalNotification {
    std::string title;
    std::string text;

    bool operator==(const LocalNotification&) const = default;
};

/// Messages to the person outside the program's windows. The system decides whether and how they are shown; the
/// person may have switched them off.
class LocalNotifications {
public:
    virtual ~LocalNotifications() = default;

    /// Does not wait for anyone to see it and has no result. Any thread.
    virtual void show(const LocalNotification& notification) = 0;
};

} // namespace tavrik
