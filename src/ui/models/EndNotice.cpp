#include "ui/models/EndNotice.h"

#include "platform/LocalNotifications.h"

#include <QGuiApplication>
#include <QWindow>

namespace tavrik {

void EndNotice::tell(const QString& title, const QString& text) {
    if (QGuiApplication::focusWindow())
        return;
    m_notifications.show({.title = title.toStdString(), .text = text.toStdString()});
    for (QWindow* const window : QGuiApplication::topLevelWindows()) {
        if (window->isVisible())
            window->alert(0); // until the person looks
    }
}

} // namespace tavrik
