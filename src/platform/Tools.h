#pragma once

#include "platform/Path.h"
#include "platform/Result.h"

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

namespace tavrik {

struct ToolResult {
    int exitStatus = 0; ///< 128 + the signal's number when a signal ended it
    std::string output;
    std::string errors;
};

/// How long a child may run and how much of each of its two outputs is kept; what is printed beyond that is
/// read and dropped.
struct ToolLimits {
    std::chrono::milliseconds time{30'000};
    std::size_t outputBytes = 1u << 20;
};

/// The system's own tools as child processes.
class Tools {
public:
    virtual ~Tools() = default;

    /// Runs a tool and waits for it. An error when it cannot be started, or when it does not end in time: it is
    /// then killed and reaped. Arguments are handed over as they stand, without a shell. Background thread
    /// only.
    virtual Result<ToolResult> run(const MacPath& tool, const std::vector<std::string>& arguments,
                                   const ToolLimits& limits = {}) = 0;
};

} // namespace tavrik
