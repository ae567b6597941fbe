#include "platform/Threads.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <thread>

namespace tavrik {

namespace {

std::atomic<std::thread::id> mainThread;

} // namespace

void declareMainThread() {
    mainThread = std::this_thread::get_id();
}

bool isMainThread() {
    return mainThread.load() == std::this_thread::get_id();
}

void assertOffMainThread(const char* what) {
    if (!isMainThread())
        return;
    std::fprintf(stderr, "%s must not run on the main thread: it blocks\n", what);
    std::abort();
}

void assertOnMainThread(const char* what) {
    if (isMainThread() || mainThread.load() == std::thread::id())
        return;
    std::fprintf(stderr, "%s must run on the main thread\n", what);
    std::abort();
}

} // namespace tavrik
