#pragma once

#include "platform/FileDescriptor.h"

#include <spawn.h>
#include <sys/types.h>

#include <string>
#include <system_error>
#include <vector>

namespace tavrik {

/// Both ends of a pipe, closed for every child that is not given one, and numbered above the three standard
/// ones, so that giving a child its own three overwrites neither. Empty ends and errno when there is none.
struct Pipe {
    Pipe();

    FileDescriptor reading;
    FileDescriptor writing;
};

/// How a child is started: in a process group of its own, so that a terminal's interrupt is not for it, and
/// with signals as a fresh program expects them. A failure of any step is kept and told by `start`.
class SpawnPlan {
public:
    SpawnPlan();
    ~SpawnPlan();
    SpawnPlan(const SpawnPlan&) = delete;
    SpawnPlan& operator=(const SpawnPlan&) = delete;

    /// The child finds a file, or a descriptor of ours, under this number.
    void open(const char* file, int flags, int childNumber);
    void give(int descriptor, int childNumber);
    void close(int descriptor);

    /// Starts a program of the host; its first argument is its own path. `child` is set on success alone.
    std::error_code start(const std::string& program, const std::vector<std::string>& arguments, pid_t& child);

private:
    void note(int result);

    posix_spawn_file_actions_t m_actions{};
    posix_spawnattr_t m_attributes{};
    int m_failure = 0;
};

} // namespace tavrik
