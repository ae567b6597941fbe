#include "platform/practice/PracticeTools.h"

#include "platform/ChildProcess.h"
#include "platform/PosixFileManager.h"

#include <cerrno>

namespace tavrik::practice {

PracticeTools::PracticeTools(const PosixFileManager& files) : m_files(files) {}

Result<ToolResult> PracticeTools::run(const MacPath& tool, const std::vector<std::string>& arguments,
                                      const ToolLimits& limits) {
    const auto attributes = m_files.attributes(tool, Links::dontFollow);
    if (!attributes)
        return attributes.error();
    if (attributes->type != FileType::file)
        return Error{tool.string() + " is no program.", EACCES};
    const auto program = m_files.hostPath(tool, Links::dontFollow);
    if (!program)
        return program.error();
    return runChild(*program, arguments, limits);
}

} // namespace tavrik::practice
