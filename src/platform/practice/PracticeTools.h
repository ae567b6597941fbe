#pragma once

#include "platform/Tools.h"

namespace tavrik {
class PosixFileManager;
}

namespace tavrik::practice {

/// The volume's own programs as child processes, never the host's: only a plain file that lies in the volume is
/// started, so that no link leads out of it. Its own first argument tells it the volume, as its host path.
class PracticeTools : public Tools {
public:
    explicit PracticeTools(const PosixFileManager& files);

    Result<ToolResult> run(const MacPath& tool, const std::vector<std::string>& arguments,
                           const ToolLimits& limits = {}) override;

private:
    const PosixFileManager& m_files;
};

} // namespace tavrik::practice
