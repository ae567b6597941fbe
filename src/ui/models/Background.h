#pragma once

#include "app/AppDelegate.h"
#include "platform/MainQueue.h"

#include <QObject>
#include <QPointer>

#include <memory>
#include <type_traits>
#include <utility>

namespace tavrik {

/// Does for the window's models what blocks: one work after the other, on the queue of the applies and of the
/// checks of the start, so that none runs beside another. The program does not end before they are done.
class Background {
public:
    explicit Background(AppDelegate& delegate) : m_delegate(delegate) {}

    /// Runs `work` on the queue and hands its answer to `then` on the main thread, unless `context`, alive
    /// during the call, is gone by then. Main thread; returns at once.
    template<typename Work, typename Then>
    void run(QObject* context, Work work, Then then) {
        m_delegate.inBackground(
            [context = QPointer<QObject>(context), work = std::move(work), then = std::move(then)]() mutable {
                using Answer = std::invoke_result_t<Work>;
                if constexpr (std::is_void_v<Answer>) {
                    work();
                    MainQueue::async(std::move(context), std::move(then));
                } else {
                    // Answers need not be copyable, as functions must be.
                    auto answer = std::make_shared<Answer>(work());
                    MainQueue::async(std::move(context),
                                     [answer, then = std::move(then)]() mutable { then(std::move(*answer)); });
                }
            });
    }

private:
    AppDelegate& m_delegate;
};

} // namespace tavrik
