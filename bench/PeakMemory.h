#pragma once

#include <sys/resource.h>

namespace tavrik::bench {

/// The most memory that this process has held at a time, in KiB.
inline long peakMemory() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
#ifdef __APPLE__
    return usage.ru_maxrss / 1024;
#else
    return usage.ru_maxrss;
#endif
}

} // namespace tavrik::bench
