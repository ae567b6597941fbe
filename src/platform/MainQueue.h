#pragma once

#include <QObject>

#include <functional>

namespace tavrik {

/// The one way to the main thread. Works need a running event loop of the application object.
namespace MainQueue {

/// Runs the work later on the main thread, in the order of posting; dropped when `context` is gone by then, or
/// null. The context must be alive during the call itself. Any thread.
void async(QObject* context, std::function<void()> work);

/// Runs the work on the main thread and waits for it; on the main thread itself it runs at once. For alerts,
/// and for programs whose work runs beside an idle main thread.
void sync(std::function<void()> work);

} // namespace MainQueue

} // namespace tavrik
