#pragma once

#include <QObject>
#include <QPointer>

#include <functional>

namespace tavrik {

/// The one way to the main thread. Works need a running event loop of the application object.
namespace MainQueue {

/// Runs the work later on the main thread, in the order of posting; dropped when `context` is gone by then, or
/// null. The context must be alive during the call itself. Any thread.
void async(QObject* context, std::function<void()> work);

/// The same for a context that may be gone at the call: the way for a worker thread to answer whoever asked it.
/// The pointer is made where the context is known to be alive, before the work leaves for another thread, and
/// is looked at on the main thread alone, where such contexts live and die.
void async(QPointer<QObject> context, std::function<void()> work);

/// Runs the work on the main thread and waits for it; on the main thread itself it runs at once. For alerts,
/// and for programs whose work runs beside an idle main thread.
void sync(std::function<void()> work);

} // namespace MainQueue

} // namespace tavrik
