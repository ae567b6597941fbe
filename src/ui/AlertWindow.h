#pragma once

#include <QQmlApplicationEngine>

namespace tavrik {

class WindowAlerts;

/// Shows alerts while there is no main window: why the program cannot start. Main thread.
class AlertWindow {
public:
    explicit AlertWindow(WindowAlerts& alerts);

private:
    QQmlApplicationEngine m_engine;
};

} // namespace tavrik
