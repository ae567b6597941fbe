#pragma once

#include "platform/MainQueue.h"
#include "platform/SerialQueue.h"

#include <QObject>
#include <QPointer>

#include <memory>
#include <type_traits>
#include <utility>

namespace tavrik {

/// The queue on which the window's models do what blocks, one work after the other: never beside each other,
/// and never beside an apply that was begun from here.
class Background {
public:
    /// Runs `work` on the queue and hands its answer to `then` on the main thread, unless `context`, alive
    /// during the call, is gone by then. Main thread; returns at once.
    template<typename Work, typename Then>
    void run(QObject* context, Work work, Then then) {
        m_queue.async(
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
    SerialQueue m_queue{"com.tavrik.window"};
};

} // namespace tavrik
