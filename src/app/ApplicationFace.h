#pragma once

#include <vector>

class QObject;

namespace tavrik {

/// A window that the application's delegate closes at quit. Main thread.
class ManagedWindow {
public:
    virtual ~ManagedWindow() = default;

    /// Takes it from the screen.
    virtual void orderOut() = 0;

    /// Closes it without asking.
    virtual void close() = 0;

    /// The one that a progress sheet covers.
    virtual QObject* object() = 0;
};

/// What the application's delegate asks of the program's windows. Main thread.
class ApplicationFace {
public:
    virtual ~ApplicationFace() = default;

    virtual void disableAutomaticTabbing() = 0;

    virtual std::vector<ManagedWindow*> openWindows() = 0;

    /// Brings up the settings window, whose identifier is "settings-window".
    virtual void openSettings() = 0;

    /// Ends the application, without asking.
    virtual void terminate() = 0;
};

} // namespace tavrik
