#pragma once

#include "platform/Tools.h"

namespace tavrik {

/// Runs a program of the host and waits for it, reading both outputs as they come. The contract is that of
/// `Tools::run`; adapters differ only in which file stands for a tool. The child gets no standard input and its
/// own first argument is the program's host path.
Result<ToolResult> runChild(const HostPath& program, const std::vector<std::string>& arguments,
                            const ToolLimits& limits);

} // namespace tavrik
