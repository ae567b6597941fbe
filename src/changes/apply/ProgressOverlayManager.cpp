#include "changes/apply/ProgressOverlayManager.h"

#include "platform/MainQueue.h"
#include "platform/NotificationCenter.h"
#include "platform/Threads.h"

#include <utility>

namespace tavrik {

ProgressOverlayManager::ProgressOverlayManager(NotificationCenter& notifications)
    : m_notifications(notifications) {}

void ProgressOverlayManager::show(QObject* parentWindow, double totalSteps) {
    assertOnMainThread("Showing the progress");
    m_parentWindow = parentWindow;
    m_currentStatus = "Preparing...";
    m_progressValue = 0;
    m_totalSteps = totalSteps;
    m_isShown = true;
    m_notifications.post(kProgressUpdated);
    m_notifications.post(kBlockingStateChanged);
}

void ProgressOverlayManager::setTotalSteps(double totalSteps) {
    onMain([this, totalSteps] {
        m_totalSteps = totalSteps;
        m_notifications.post(kProgressUpdated);
    });
}

void ProgressOverlayManager::update(const std::string& status, double value) {
    onMain([this, status, value] {
        m_currentStatus = status;
        m_progressValue = value;
        m_notifications.post(kProgressUpdated);
    });
}

void ProgressOverlayManager::hide() {
    onMain([this] {
        if (!std::exchange(m_isShown, false))
            return;
        m_parentWindow.clear();
        m_notifications.post(kProgressUpdated);
        m_notifications.post(kBlockingStateChanged);
    });
}

void ProgressOverlayManager::onMain(std::function<void()> work) {
    MainQueue::async(&m_mainThread, std::move(work));
}

} // namespace tavrik
