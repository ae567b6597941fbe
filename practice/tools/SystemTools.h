#pragma once

#include "platform/Date.h"
#include "platform/Path.h"

#include <functional>
#include <string>
#include <vector>

/// The system tools of a practice Mac: touch, killall, defaults, chflags, xattr, ln and lsregister, with the
/// arguments, texts and exit statuses of the Mac's.
namespace tavrik::practice {

struct ToolSurroundings {
    HostPath root;
    Date now;
    /// Sends a signal to every process of that name; the number of processes that got it.
    std::function<int(const std::string& process, int signal)> signalProcesses;
};

struct ToolAnswer {
    int exitStatus = 0;
    std::string output;
    std::string errors;
};

/// The paths of all tools.
std::vector<MacPath> systemTools();

/// Runs the tool that stands at this path of the Mac and notes the call in the volume's journal. 127 for a path
/// that is no tool. Tools of one volume take turns, those of other processes too, so that each reads and writes
/// the volume's state as a whole; none waits for anything else.
ToolAnswer runSystemTool(const ToolSurroundings& surroundings, const MacPath& tool,
                         const std::vector<std::string>& arguments);

} // namespace tavrik::practice
