#pragma once

#include "platform/FileLock.h"
#include "platform/Path.h"

#include <optional>
#include <string>
#include <vector>

namespace tavrik::practice {

/// A running process of a practice Mac: the file "<name>.<pid>" in its process folder, locked for as long as
/// the process lives. The lock is what tells a process of this Mac from a stranger that was given the number of
/// a dead one, so that nobody else is ever signalled. A killed process leaves its file behind, unlocked;
/// whoever looks for processes next removes it.
class ProcessRecord {
public:
    /// Records the calling process under a name. The file appears locked. Nothing when it cannot be made.
    static std::optional<ProcessRecord> claim(const HostPath& root, const std::string& name);

    ProcessRecord(ProcessRecord&& other) noexcept;
    ProcessRecord& operator=(ProcessRecord&&) = delete;
    ~ProcessRecord();

private:
    ProcessRecord(HostPath file, FileLock lock);

    HostPath m_file;
    FileLock m_lock;
};

/// The numbers of the processes of that name that live on this Mac. Removes the files of dead ones.
std::vector<int> liveProcesses(const HostPath& root, const std::string& name);

/// Sends a signal to each of them; the number of those that got it.
int signalProcesses(const HostPath& root, const std::string& name, int signal);

} // namespace tavrik::practice
