#pragma once

#include "platform/LocalNotifications.h"

namespace tavrik {
class Clock;
class PosixFileManager;
} // namespace tavrik

namespace tavrik::practice {

/// Notes each message in the volume's journal of what the person was told.
class PracticeLocalNotifications : public LocalNotifications {
public:
    PracticeLocalNotifications(PosixFileManager& files, const Clock& clock);

    void show(const LocalNotification& notification) override;

private:
    PosixFileManager& m_files;
    const Clock& m_clock;
};

} // namespace tavrik::practice
