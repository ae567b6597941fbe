#include "platform/MainQueue.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThread>

#include <utility>

namespace tavrik::MainQueue {

void async(QObject* context, std::function<void()> work) {
    if (!context)
        return;
    // All through one receiver, which keeps the order of posting across contexts.
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [guard = QPointer<QObject>(context), work = std::move(work)] {
            if (guard)
                work();
        },
        Qt::QueuedConnection);
}

void sync(std::function<void()> work) {
    QCoreApplication* const application = QCoreApplication::instance();
    if (QThread::currentThread() == application->thread())
        work();
    else
        QMetaObject::invokeMethod(application, std::move(work), Qt::BlockingQueuedConnection);
}

} // namespace tavrik::MainQueue
