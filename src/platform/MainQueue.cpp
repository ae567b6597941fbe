#include "platform/MainQueue.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThread>

#include <future>
#include <memory>
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
    if (QThread::currentThread() == application->thread()) {
        work();
        return;
    }
    // Only the posted work holds the promise: should it be dropped with the application, the wait ends too.
    auto promise = std::make_shared<std::promise<void>>();
    const std::future<void> ran = promise->get_future();
    async(application, [&work, promise = std::move(promise)] {
        work();
        promise->set_value();
    });
    ran.wait();
}

} // namespace tavrik::MainQueue
