#pragma once

#include "platform/DistributedNotifications.h"

namespace tavrik {
class Clock;
class PosixFileManager;
} // namespace tavrik

namespace tavrik::practice {

/// Notes what is posted in the volume's journal of notifications. Nobody on a practice Mac listens: its Dock
/// reads its preferences when it starts, as the Mac's does.
class PracticeNotifications : public DistributedNotifications {
public:
    PracticeNotifications(PosixFileManager& files, const Clock& clock);

    void post(const std::string& name) override;

private:
    PosixFileManager& m_files;
    const Clock& m_clock;
};

} // namespace tavrik::practice
