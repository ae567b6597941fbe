#include "platform/Clock.h"

#include "platform/Threads.h"

#include <thread>

namespace tavrik {

Date SystemClock::now() const {
    const std::chrono::duration<double> sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    return dateFromUnix(sinceEpoch.count());
}

void SystemClock::sleep(std::chrono::milliseconds time) {
    assertOffMainThread("SystemClock::sleep");
    std::this_thread::sleep_for(time);
}

} // namespace tavrik
