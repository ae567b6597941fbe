#pragma once

#include <QString>

namespace tavrik {

class LocalNotifications;

/// Calls a person back who looked elsewhere while something long went on: by a message of the system, and by
/// the program's icon in the Dock. Main thread.
class EndNotice {
public:
    explicit EndNotice(LocalNotifications& notifications) : m_notifications(notifications) {}

    /// How it ended, in a few words and in a sentence. Nothing while a window of the program is in front: it
    /// tells the end by itself.
    void tell(const QString& title, const QString& text);

private:
    LocalNotifications& m_notifications;
};

} // namespace tavrik
