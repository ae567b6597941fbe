#pragma once

#include "platform/Path.h"
#include "platform/RecordingClock.h"
#include "platform/Tools.h"

#include <functional>
#include <memory>
#include <optional>

namespace tavrik::practice {

/// A practice Mac's session in virtual time, without processes: its tools run inside the program, whether or
/// not their programs stand on the volume, and its Dock is started again and indexes at moments of the
/// recording clock, by the same code as the real ones and by the volume's behaviour settings. Its Dock runs
/// from the start. Any thread; tools take turns. The clock must outlive it; what it has scheduled there does
/// nothing once it is gone.
class VirtualSession : public Tools {
public:
    /// Called before each tool runs. A result takes the place of the tool, which then does not run and is not
    /// noted in the journal; without one the tool runs.
    using Interceptor = std::function<std::optional<Result<ToolResult>>(
        const MacPath& tool, const std::vector<std::string>& arguments, const ToolLimits& limits)>;

    VirtualSession(HostPath root, RecordingClock& clock);
    ~VirtualSession() override;

    Result<ToolResult> run(const MacPath& tool, const std::vector<std::string>& arguments,
                           const ToolLimits& limits = {}) override;

    /// An empty one lets every tool run again.
    void setInterceptor(Interceptor interceptor);

    /// Whether there is a Dock at this moment.
    bool dockRuns() const;

private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace tavrik::practice
