#include "platform/ChildProcess.h"

#include "platform/FileDescriptor.h"
#include "platform/SpawnPlan.h"
#include "platform/Threads.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <optional>
#include <thread>

namespace tavrik {

namespace {

using Deadline = std::chrono::steady_clock::time_point;
using std::chrono::microseconds;
using std::chrono::milliseconds;

constexpr milliseconds kLongestRun = std::chrono::hours(24);
/// How often an end is looked for while something else than the child may hold its outputs open.
constexpr milliseconds kLookAgain{20};
constexpr microseconds kFirstPause{100};
constexpr std::size_t kBlock = 64u << 10;      // bytes
constexpr std::size_t kMostInAPipe = 1u << 20; // bytes

/// One output of the child: the end that we read, the end that the child writes, and what came.
class Output {
public:
    std::error_code open() {
        Pipe pipe;
        m_reading = std::move(pipe.reading);
        m_writing = std::move(pipe.writing);
        if (!m_reading || !m_writing || ::fcntl(m_reading.number(), F_SETFL, O_NONBLOCK) != 0)
            return lastError();
        return {};
    }

    int childEnd() const { return m_writing.number(); }

    void closeChildEnd() { m_writing = FileDescriptor(); }

    bool isOpen() const { return static_cast<bool>(m_reading); }

    pollfd readiness() const { return {.fd = m_reading.number(), .events = POLLIN, .revents = 0}; }

    /// Takes what is there, at most about `limit` bytes, without waiting.
    void take(std::string& kept, std::size_t most, std::size_t limit) {
        Bytes block(kBlock);
        for (std::size_t taken = 0; isOpen() && taken < limit;) {
            const ssize_t count = m_reading.read(block);
            if (count < 0 && (errno == EAGAIN || errno == EWOULDBLOCK))
                return;
            if (count <= 0) {
                m_reading = FileDescriptor();
                return;
            }
            taken += static_cast<std::size_t>(count);
            const std::size_t room = most - std::min(most, kept.size());
            kept.append(textOf(ByteView(block).first(std::min(room, static_cast<std::size_t>(count)))));
        }
    }

private:
    FileDescriptor m_reading;
    FileDescriptor m_writing;
};

/// The child from its start until it is reaped.
class Child {
public:
    Child(pid_t pid, Deadline deadline) : m_pid(pid), m_deadline(deadline) {}

    /// False when the deadline came first.
    bool readUntilEnd(std::array<Output, 2>& outputs, ToolResult& result, std::size_t most) {
        microseconds pause = kFirstPause;
        while (!hasEnded()) {
            const auto left = m_deadline - std::chrono::steady_clock::now();
            if (left <= Deadline::duration::zero())
                return false;
            if (outputs[0].isOpen() || outputs[1].isOpen()) {
                waitForOutput(outputs, std::chrono::ceil<milliseconds>(left));
                take(outputs, result, most, kBlock);
            } else {
                // Both outputs are closed: the end is near as a rule, but no descriptor will tell.
                std::this_thread::sleep_for(pause);
                pause = std::min<microseconds>(pause * 2, kLookAgain);
            }
        }
        take(outputs, result, most, kMostInAPipe);
        return true;
    }

    /// Ends the child with all that it started in its group.
    void kill() {
        ::kill(-m_pid, SIGKILL);
        while (::waitpid(m_pid, &m_status, 0) < 0 && errno == EINTR) {
        }
    }

    std::optional<int> exitStatus() const {
        if (m_lost)
            return std::nullopt;
        return WIFSIGNALED(m_status) ? 128 + WTERMSIG(m_status) : WEXITSTATUS(m_status);
    }

private:
    bool hasEnded() {
        const pid_t reaped = ::waitpid(m_pid, &m_status, WNOHANG);
        m_lost = reaped < 0 && errno != EINTR;
        return reaped == m_pid || m_lost;
    }

    static void waitForOutput(const std::array<Output, 2>& outputs, milliseconds most) {
        std::array<pollfd, 2> ready{outputs[0].readiness(), outputs[1].readiness()};
        ::poll(ready.data(), ready.size(), static_cast<int>(std::min(most, kLookAgain).count()));
    }

    static void take(std::array<Output, 2>& outputs, ToolResult& result, std::size_t most, std::size_t limit) {
        outputs[0].take(result.output, most, limit);
        outputs[1].take(result.errors, most, limit);
    }

    const pid_t m_pid;
    const Deadline m_deadline;
    int m_status = 0;
    bool m_lost = false; ///< somebody else reaped it
};

Error failure(const HostPath& program, std::error_code reason) {
    return {program.string() + ": " + reason.message(), reason.value()};
}

bool holdsNul(const std::string& text) {
    return text.find('\0') != std::string::npos;
}

} // namespace

Result<ToolResult> runChild(const HostPath& program, const std::vector<std::string>& arguments,
                            const ToolLimits& limits) {
    assertOffMainThread("runChild");
    if (holdsNul(program.string()) || std::any_of(arguments.begin(), arguments.end(), holdsNul))
        return failure(program, std::make_error_code(std::errc::invalid_argument));
    std::array<Output, 2> outputs;
    for (Output& output : outputs) {
        if (const auto failed = output.open())
            return failure(program, failed);
    }
    const milliseconds time = std::min(limits.time, kLongestRun);
    const Deadline deadline = std::chrono::steady_clock::now() + time;
    pid_t pid = -1;
    SpawnPlan plan;
    plan.open("/dev/null", O_RDONLY, STDIN_FILENO);
    plan.give(outputs[0].childEnd(), STDOUT_FILENO);
    plan.give(outputs[1].childEnd(), STDERR_FILENO);
    if (const auto failed = plan.start(program.string(), arguments, pid))
        return failure(program, failed);
    for (Output& output : outputs)
        output.closeChildEnd();

    Child child(pid, deadline);
    ToolResult result;
    if (!child.readUntilEnd(outputs, result, limits.outputBytes)) {
        child.kill();
        return Error{program.string() + ": did not end within " + std::to_string(time.count()) +
                         " ms and was killed",
                     ETIMEDOUT};
    }
    const auto status = child.exitStatus();
    if (!status)
        return failure(program, std::make_error_code(std::errc::no_child_process));
    result.exitStatus = *status;
    return result;
}

} // namespace tavrik
