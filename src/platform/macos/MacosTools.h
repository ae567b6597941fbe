#pragma once

#include "platform/Tools.h"

namespace tavrik::macos {

/// The system's tools at their own paths, as child processes.
class MacosTools : public Tools {
public:
    Result<ToolResult> run(const MacPath& tool, const std::vector<std::string>& arguments,
                           const ToolLimits& limits = {}) override;
};

} // namespace tavrik::macos
