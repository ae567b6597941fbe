#include "platform/Clock.h"
#include "practice/process/ProcessRecord.h"
#include "practice/process/ProgramPlace.h"
#include "practice/tools/SystemTools.h"

#include <iostream>

/// All system tools of a practice Mac in one program: it acts by the path that it was started by.
int main(int count, char** arguments) {
    using namespace tavrik::practice;
    const char* startedBy = count > 0 ? arguments[0] : "";
    for (const tavrik::MacPath& tool : systemTools()) {
        const auto root = volumeOfProgram(startedBy, tool);
        if (!root)
            continue;
        const ToolSurroundings surroundings{.root = *root,
                                            .now = tavrik::SystemClock().now(),
                                            .signalProcesses = [&](const auto& name, int signal) {
                                                return signalProcesses(*root, name, signal);
                                            }};
        const ToolAnswer answer = runSystemTool(surroundings, tool, {arguments + 1, arguments + count});
        std::cout << answer.output;
        std::cerr << answer.errors;
        return answer.exitStatus;
    }
    std::cerr << startedBy << ": not a tool of a practice Mac\n";
    return 127;
}
