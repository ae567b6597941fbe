#include "platform/practice/PracticeNotifications.h"

#include "platform/Clock.h"
#include "platform/PosixFileManager.h"
#include "platform/practice/Journal.h"
#include "platform/practice/Layout.h"

namespace tavrik::practice {

PracticeNotifications::PracticeNotifications(PosixFileManager& files, const Clock& clock)
    : m_files(files),
      m_clock(clock) {}

void PracticeNotifications::post(const std::string& name) {
    // Posting has no result on a Mac either.
    ignoreFailure(appendToJournal(m_files, kNotificationJournal, m_clock.now(), {name}));
}

} // namespace tavrik::practice
