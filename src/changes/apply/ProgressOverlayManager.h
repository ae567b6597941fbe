#pragma once

#include <QObject>
#include <QPointer>

#include <functional>
#include <string>
#include <string_view>

namespace tavrik {

class NotificationCenter;

/// Notifications that it posts, on the main thread: what the sheet shows has changed; and whether a long
/// operation owns the interface has.
inline constexpr std::string_view kProgressUpdated = "ProgressUpdated";
inline constexpr std::string_view kBlockingStateChanged = "BlockingStateChanged";

/// What the sheet that covers the window during an apply shows, and the only way to report progress. Whoever
/// draws it observes the notifications: the window a sheet that cannot be closed, the companion a line on the
/// terminal.
///
/// Its values belong to the main thread. `update`, `setTotalSteps` and `hide` may be called on any thread,
/// cross over by themselves, never block, and take effect in the order of the calls.
class ProgressOverlayManager {
public:
    explicit ProgressOverlayManager(NotificationCenter& notifications);

    /// On the main thread. `parentWindow` is the window to cover; null without one.
    void show(QObject* parentWindow, double totalSteps);
    void setTotalSteps(double totalSteps);
    void update(const std::string& status, double value);
    void hide();

    bool isShown() const { return m_isShown; }

    QObject* parentWindow() const { return m_parentWindow; }

    const std::string& currentStatus() const { return m_currentStatus; }

    double progressValue() const { return m_progressValue; } ///< steps done

    double totalSteps() const { return m_totalSteps; } ///< the bar's maximum

private:
    void onMain(std::function<void()> work);

    NotificationCenter& m_notifications;
    bool m_isShown = false;
    QPointer<QObject> m_parentWindow;
    std::string m_currentStatus;
    double m_progressValue = 0;
    double m_totalSteps = 0;
    QObject m_mainThread; ///< last: what is under way to the main thread goes with it
};

} // namespace tavrik
