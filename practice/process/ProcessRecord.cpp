#include "practice/process/ProcessRecord.h"

#include "platform/practice/Layout.h"

#include <signal.h>
#include <sys/types.h>
#include <unistd.h>

#include <charconv>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>

namespace tavrik::practice {

namespace {

HostPath processFolder(const HostPath& root) {
    return root / kProcessFolder.string();
}

/// The number in "<name>.<number>"; nothing for the file of another program.
std::optional<int> processNumber(std::string_view file, std::string_view name) {
    if (!file.starts_with(name) || file.size() <= name.size() + 1 || file[name.size()] != '.')
        return std::nullopt;
    const std::string_view digits = file.substr(name.size() + 1);
    int number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || end != digits.data() + digits.size() || number <= 1)
        return std::nullopt;
    return number;
}

} // namespace

std::optional<ProcessRecord> ProcessRecord::claim(const HostPath& root, const std::string& name) {
    const HostPath folder = processFolder(root);
    std::error_code error;
    std::filesystem::create_directories(folder.string(), error);
    const std::string file = name + "." + std::to_string(::getpid());

    // Locked under a name that nobody looks at, so that no one takes it for a dead process's file meanwhile.
    const HostPath unfinished = folder / ("." + file);
    auto lock = FileLock::take(unfinished, FileLock::Wait::no);
    if (!lock)
        return std::nullopt;
    std::filesystem::rename(unfinished.string(), (folder / file).string(), error);
    if (error)
        return std::nullopt;
    return ProcessRecord(folder / file, std::move(*lock));
}

ProcessRecord::ProcessRecord(HostPath file, FileLock lock) : m_file(std::move(file)), m_lock(std::move(lock)) {}

ProcessRecord::ProcessRecord(ProcessRecord&& other) noexcept
    : m_file(std::exchange(other.m_file, HostPath())),
      m_lock(std::move(other.m_lock)) {}

ProcessRecord::~ProcessRecord() {
    if (!m_file.empty())
        ::unlink(m_file.string().c_str());
}

std::vector<int> liveProcesses(const HostPath& root, const std::string& name) {
    const HostPath folder = processFolder(root);
    std::vector<int> numbers;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder.string(), error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string file = entry->path().filename().string();
        const auto number = processNumber(file, name);
        if (!number)
            continue;
        if (!FileLock::isHeld(folder / file))
            ::unlink((folder / file).string().c_str());
        else if (::kill(*number, 0) == 0)
            numbers.push_back(*number);
    }
    return numbers;
}

int signalProcesses(const HostPath& root, const std::string& name, int signal) {
    int reached = 0;
    for (const int number : liveProcesses(root, name))
        reached += ::kill(number, signal) == 0 ? 1 : 0;
    return reached;
}

} // namespace tavrik::practice
