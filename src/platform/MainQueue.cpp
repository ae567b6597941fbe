#include "platform/MainQueue.h"

#include <QCoreApplication>
#include <QThread>

#include <future>
#include <memory>
#include <utility>

namespace tavrik::MainQueue {

void async(QObject* context, std::function<void()> work) {
    async(QPointer<QObject>(context), std::move(work));
}

void async(QPointer<QObject> context, std::function<void()> work) {
    // All through one receiver, which keeps the order of posting across contexts.
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [context = std::move(context), work = std::move(work)] {
            if (context)
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
