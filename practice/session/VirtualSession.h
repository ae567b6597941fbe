#pragma once

#include "platform/Path.h"
#include "platform/RecordingClock.h"
#include "platform/Tools.h"

#include <memory>

namespace tavrik::practice {

/// A practice Mac's session in virtual time, without processes: its tools run inside the program, and its Dock
/// is started again and indexes at moments of the recording clock, by the same code as the real ones and by the
/// volume's behaviour settings.
class VirtualSession : public Tools {
public:
    VirtualSession(HostPath root, RecordingClock& clock);
    ~VirtualSession() override;

    Result<ToolResult> run(const MacPath& tool, const std::vector<std::string>& arguments,
                           const ToolLimits& limits = {}) override;

private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace tavrik::practice
