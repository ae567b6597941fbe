#include "platform/SpawnPlan.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <csignal>

extern char** environ;

namespace tavrik {

Pipe::Pipe() {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0)
        return;
    const FileDescriptor first(ends[0]);
    const FileDescriptor second(ends[1]);
    reading = FileDescriptor(::fcntl(first.number(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
    writing = FileDescriptor(::fcntl(second.number(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

SpawnPlan::SpawnPlan() {
    note(::posix_spawn_file_actions_init(&m_actions));
    note(::posix_spawnattr_init(&m_attributes));
    sigset_t signals;
    sigemptyset(&signals);
    note(::posix_spawnattr_setsigmask(&m_attributes, &signals));
    sigfillset(&signals);
    sigdelset(&signals, SIGKILL);
    sigdelset(&signals, SIGSTOP);
    note(::posix_spawnattr_setsigdefault(&m_attributes, &signals));
    note(::posix_spawnattr_setpgroup(&m_attributes, 0));
    note(::posix_spawnattr_setflags(
        &m_attributes,
        static_cast<short>(POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF)));
}

SpawnPlan::~SpawnPlan() {
    ::posix_spawn_file_actions_destroy(&m_actions);
    ::posix_spawnattr_destroy(&m_attributes);
}

void SpawnPlan::open(const char* file, int flags, int childNumber) {
    note(::posix_spawn_file_actions_addopen(&m_actions, childNumber, file, flags, 0));
}

void SpawnPlan::give(int descriptor, int childNumber) {
    note(::posix_spawn_file_actions_adddup2(&m_actions, descriptor, childNumber));
}

void SpawnPlan::close(int descriptor) {
    note(::posix_spawn_file_actions_addclose(&m_actions, descriptor));
}

std::error_code SpawnPlan::start(const std::string& program, const std::vector<std::string>& arguments,
                                 pid_t& child) {
    std::vector<std::string> texts{program};
    texts.insert(texts.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    if (m_failure == 0)
        note(::posix_spawn(&child, program.c_str(), &m_actions, &m_attributes, pointers.data(), environ));
    return {m_failure, std::generic_category()};
}

void SpawnPlan::note(int result) {
    if (m_failure == 0)
        m_failure = result;
}

} // namespace tavrik
