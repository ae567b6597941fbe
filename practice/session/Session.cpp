#include "practice/session/Session.h"

#include "platform/FileLock.h"
#include "platform/practice/Layout.h"
#include "practice/dock/Dock.h"
#include "practice/process/ProcessRecord.h"
#include "practice/session/DockProcess.h"

#include <signal.h>

#include <chrono>
#include <condition_variable>
#include <iostream>
#include <mutex>
#include <thread>
#include <utility>

namespace tavrik::practice {

namespace {

using Duration = std::chrono::duration<double>;

constexpr Duration kLongestStart{3.0};    ///< that the constructor waits for a Dock
constexpr Duration kLookForDock{0.005};   ///< how often it looks
constexpr Duration kLookForKeeper{0.1};   ///< how often a second keeper looks whether the first is gone
constexpr Duration kLongestFarewell{2.0}; ///< that a Dock has to end by itself
constexpr Duration kImmediate{1.0};       ///< a failure within this time of the start counts as immediate
constexpr int kMostImmediateFailures = 5;

} // namespace

struct Session::State {
    explicit State(HostPath volume) : root(std::move(volume)), keeper([this] { keep(); }) {}

    ~State();

    void keep();
    bool waitForTurn();
    void waitForOtherDocks();
    bool runDock();
    bool pause(Duration time);

    const HostPath root;
    Lifeline lifeline;
    DockProcess dock;
    std::optional<FileLock> turn;

    std::mutex mutex;
    std::condition_variable changed;
    bool stopping = false;
    bool ended = false; ///< the keeper has nothing more to do

    std::thread keeper; // last: it uses all of the above
};

Session::State::~State() {
    {
        const std::lock_guard lock(mutex);
        stopping = true;
    }
    changed.notify_all();
    lifeline.writing = FileDescriptor();
    {
        std::unique_lock lock(mutex);
        if (!changed.wait_for(lock, kLongestFarewell, [this] { return ended; }))
            dock.kill();
    }
    keeper.join();
}

void Session::State::keep() {
    int failures = 0;
    if (waitForTurn()) {
        waitForOtherDocks();
        while (failures < kMostImmediateFailures) {
            const auto started = std::chrono::steady_clock::now();
            const bool failed = !runDock();
            const bool isImmediate = std::chrono::steady_clock::now() - started < kImmediate;
            failures = failed && isImmediate ? failures + 1 : 0;
            if (!pause(Duration(readDockBehaviour(root).restartDelay)))
                break;
        }
    }
    if (failures == kMostImmediateFailures)
        std::cerr << "practice Mac: the Dock at " + root.string() + " fails at every start, giving up\n";
    turn.reset();
    {
        const std::lock_guard lock(mutex);
        ended = true;
    }
    changed.notify_all();
}

/// False when the session ended first.
bool Session::State::waitForTurn() {
    const HostPath lock = root / kStateFolder.string() / "session.lock";
    do
        turn = FileLock::take(lock, FileLock::Wait::no);
    while (!turn && pause(kLookForKeeper));
    return turn.has_value();
}

/// The Dock of a keeper that was killed ends by itself, a moment after it.
void Session::State::waitForOtherDocks() {
    const auto deadline = std::chrono::steady_clock::now() + kLongestFarewell;
    while (!liveProcesses(root, kDockProgram.name()).empty() && std::chrono::steady_clock::now() < deadline)
        if (!pause(kLookForDock))
            return;
    signalProcesses(root, kDockProgram.name(), SIGKILL);
}

/// Starts the Dock and waits for its end. False when it could not start or failed.
bool Session::State::runDock() {
    {
        const std::lock_guard lock(mutex);
        if (stopping)
            return true;
        if (!dock.start(root, lifeline))
            return false;
    }
    return dock.wait();
}

/// Waits, and tells whether the session goes on.
bool Session::State::pause(Duration time) {
    std::unique_lock lock(mutex);
    return !changed.wait_for(lock, time, [this] { return stopping; });
}

Session::Session(HostPath root) : m_state(std::make_unique<State>(std::move(root))) {
    const auto deadline = std::chrono::steady_clock::now() + kLongestStart;
    const auto hasEnded = [this] {
        const std::lock_guard lock(m_state->mutex);
        return m_state->ended;
    };
    while (liveProcesses(m_state->root, kDockProgram.name()).empty() && !hasEnded() &&
           std::chrono::steady_clock::now() < deadline)
        std::this_thread::sleep_for(kLookForDock);
}

Session::~Session() = default;

} // namespace tavrik::practice
