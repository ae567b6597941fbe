#include "platform/practice/PracticeLocalNotifications.h"

#include "platform/Clock.h"
#include "platform/PosixFileManager.h"
#include "platform/practice/Journal.h"
#include "platform/practice/Layout.h"

namespace tavrik::practice {

PracticeLocalNotifications::PracticeLocalNotifications(PosixFileManager& files, const Clock& clock)
    : m_files(files),
      m_clock(clock) {}

void PracticeLocalNotifications::show(const LocalNotification& notification) {
    // A Mac does not tell either whether it was shown.
    ignoreFailure(appendToJournal(m_files, kLocalNotificationJournal, m_clock.now(),
                                  {notification.title, notification.text}));
}

} // namespace tavrik::practice
