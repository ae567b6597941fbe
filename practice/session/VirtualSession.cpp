#include "practice/session/VirtualSession.h"

#include "platform/practice/Layout.h"
#include "practice/dock/Dock.h"
#include "practice/tools/SystemTools.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <mutex>
#include <utility>

namespace tavrik::practice {

namespace {

constexpr std::chrono::milliseconds kIndexRetry{1'000};

std::chrono::milliseconds inMilliseconds(double seconds) {
    return std::chrono::round<std::chrono::milliseconds>(std::chrono::duration<double>(seconds));
}

} // namespace

/// Shared with the events on the clock, which hold it weakly.
struct VirtualSession::State : std::enable_shared_from_this<State> {
    State(HostPath volume, RecordingClock& time) : root(std::move(volume)), clock(time) {}

    void startDock();
    void scheduleIndex(std::chrono::milliseconds after);
    int killDock();
    ToolAnswer runTool(const MacPath& tool, const std::vector<std::string>& arguments);

    const HostPath root;
    RecordingClock& clock;
    mutable std::mutex mutex; ///< guards what follows, and is held while a tool or the Dock works
    Interceptor interceptor;
    std::shared_ptr<Dock> dock;
};

void VirtualSession::State::startDock() {
    dock = std::make_shared<Dock>(root);
    scheduleIndex(inMilliseconds(readDockBehaviour(root).indexDelay));
}

/// The index belongs to the Dock of this moment: nothing comes of it when that is killed before.
void VirtualSession::State::scheduleIndex(std::chrono::milliseconds after) {
    clock.schedule(after, [session = weak_from_this(), indexing = std::weak_ptr(dock)] {
        const auto state = session.lock();
        if (!state)
            return;
        const std::lock_guard lock(state->mutex);
        const auto still = indexing.lock();
        if (still && !still->index())
            state->scheduleIndex(kIndexRetry);
    });
}

/// The number of Docks that were running.
int VirtualSession::State::killDock() {
    if (!dock)
        return 0;
    dock.reset();
    clock.schedule(inMilliseconds(readDockBehaviour(root).restartDelay), [session = weak_from_this()] {
        const auto state = session.lock();
        if (!state)
            return;
        const std::lock_guard lock(state->mutex);
        state->startDock();
    });
    return 1;
}

ToolAnswer VirtualSession::State::runTool(const MacPath& tool, const std::vector<std::string>& arguments) {
    const ToolSurroundings surroundings{
        .root = root, .now = clock.now(), .signalProcesses = [this](const std::string& process, int) {
            return process == kDockProgram.name() ? killDock() : 0;
        }};
    const std::lock_guard lock(mutex);
    return runSystemTool(surroundings, tool, arguments);
}

VirtualSession::VirtualSession(HostPath root, RecordingClock& clock)
    : m_state(std::make_shared<State>(std::move(root), clock)) {
    const std::lock_guard lock(m_state->mutex);
    m_state->startDock();
}

VirtualSession::~VirtualSession() {
    const std::lock_guard lock(m_state->mutex);
    m_state->dock.reset();
}

Result<ToolResult> VirtualSession::run(const MacPath& tool, const std::vector<std::string>& arguments,
                                       const ToolLimits& limits) {
    Interceptor interceptor;
    {
        const std::lock_guard lock(m_state->mutex);
        interceptor = m_state->interceptor;
    }
    if (interceptor)
        if (auto instead = interceptor(tool, arguments, limits))
            return *std::move(instead);

    const auto tools = systemTools();
    if (std::ranges::find(tools, tool) == tools.end())
        return Error{tool.string() + ": No such file or directory", ENOENT};
    const ToolAnswer answer = m_state->runTool(tool, arguments);
    return ToolResult{.exitStatus = answer.exitStatus,
                      .output = answer.output.substr(0, limits.outputBytes),
                      .errors = answer.errors.substr(0, limits.outputBytes)};
}

void VirtualSession::setInterceptor(Interceptor interceptor) {
    const std::lock_guard lock(m_state->mutex);
    m_state->interceptor = std::move(interceptor);
}

bool VirtualSession::dockRuns() const {
    const std::lock_guard lock(m_state->mutex);
    return m_state->dock != nullptr;
}

} // namespace tavrik::practice
