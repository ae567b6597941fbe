#include "platform/macos/MacosTools.h"

#include "platform/ChildProcess.h"

namespace tavrik::macos {

Result<ToolResult> MacosTools::run(const MacPath& tool, const std::vector<std::string>& arguments,
                                   const ToolLimits& limits) {
    return runChild(HostPath(tool.string()), arguments, limits);
}

} // namespace tavrik::macos
