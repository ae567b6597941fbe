#include "platform/FileDescriptor.h"
#include "platform/PosixFileManager.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <optional>
#include <string_view>
#include <utility>

namespace tavrik {

namespace {

constexpr int kMostLinks = 40;

std::error_code refusal(const std::string& path) {
    if (path.empty())
        return std::make_error_code(std::errc::no_such_file_or_directory);
    if (path.front() != '/' || path.find('\0') != std::string::npos)
        return std::make_error_code(std::errc::invalid_argument);
    return {};
}

/// Asks the system what is at a path of the host.
std::error_code ask(const std::string& host, Links links, struct stat& status) {
    const int result = links == Links::follow ? ::stat(host.c_str(), &status) : ::lstat(host.c_str(), &status);
    return result == 0 ? std::error_code() : lastError();
}

/// Walks a path component by component below a folder of the host, which it never leaves.
class Walk {
public:
    explicit Walk(const HostPath& root)
        : m_host(root.string() == "/" ? std::string() : root.string()),
          m_rootSize(m_host.size()) {}

    std::error_code go(const MacPath& path, Links links) {
        if (const auto refused = refusal(path.string()))
            return refused;
        m_ahead = path.string();
        while (hasMore()) {
            const std::string_view component = takeComponent();
            if (const auto failed = step(component, !hasMore(), links))
                return failed;
        }
        return {};
    }

    /// Where it has come to, seen from the root.
    std::string reached() const { return atRoot() ? "/" : m_host.substr(m_rootSize); }

    /// What is there, which a walk that follows the last link mostly knows already.
    std::error_code look(Links links, struct stat& status) const {
        if (m_last) {
            status = *m_last;
            return {};
        }
        if (m_lastIsMissing)
            return std::make_error_code(std::errc::no_such_file_or_directory);
        return ask(m_host.empty() ? "/" : m_host, links, status);
    }

private:
    bool atRoot() const { return m_host.size() == m_rootSize; }

    bool hasMore() {
        m_next = std::min(m_ahead.find_first_not_of('/', m_next), m_ahead.size());
        return m_next < m_ahead.size();
    }

    std::string_view takeComponent() {
        const std::size_t end = std::min(m_ahead.find('/', m_next), m_ahead.size());
        const std::size_t start = std::exchange(m_next, end);
        return std::string_view(m_ahead).substr(start, end - start);
    }

    std::error_code step(std::string_view component, bool isLast, Links links) {
        if (component == "." || component == "..") {
            if (const auto failed = expectFolder())
                return failed;
            if (component == ".." && !atRoot())
                m_host.resize(m_host.rfind('/'));
            return {};
        }
        const std::size_t before = m_host.size();
        m_host += '/';
        m_host += component;
        if (isLast)
            return links == Links::follow ? stepToLast(before) : std::error_code();
        return followLink(before);
    }

    std::error_code stepToLast(std::size_t before) {
        struct stat status{};
        if (const auto failed = ask(m_host, Links::dontFollow, status)) {
            m_lastIsMissing = failed == std::errc::no_such_file_or_directory;
            return m_lastIsMissing ? std::error_code() : failed;
        }
        if (S_ISLNK(status.st_mode))
            return followLink(before);
        m_last = status;
        return {};
    }

    /// Goes back to where the target begins when a link has been reached.
    std::error_code followLink(std::size_t before) {
        std::array<char, PATH_MAX> target; // left as it is: clearing it costs as much as the rest
        const ssize_t length = ::readlink(m_host.c_str(), target.data(), target.size());
        if (length < 0)
            return errno == EINVAL ? std::error_code() : lastError();
        if (++m_links > kMostLinks)
            return std::make_error_code(std::errc::too_many_symbolic_link_levels);
        const std::string_view text(target.data(), static_cast<std::size_t>(length));
        if (text.empty())
            return std::make_error_code(std::errc::no_such_file_or_directory);
        m_host.resize(text.front() == '/' ? m_rootSize : before);
        m_ahead.replace(0, m_next, std::string(text) + '/');
        m_next = 0;
        return {};
    }

    std::error_code expectFolder() const {
        struct stat status{};
        if (atRoot())
            return {};
        if (const auto failed = ask(m_host, Links::dontFollow, status))
            return failed;
        return S_ISDIR(status.st_mode) ? std::error_code() : std::make_error_code(std::errc::not_a_directory);
    }

    std::string m_host;
    const std::size_t m_rootSize; // without a "/" at its end: 0 for the host's own root
    std::string m_ahead;
    std::size_t m_next = 0; // where in it the part begins that is still to be walked
    int m_links = 0;
    std::optional<struct stat> m_last;
    bool m_lastIsMissing = false;
};

} // namespace

Result<HostPath> PosixFileManager::hostPath(const MacPath& path, Links links) const {
    Walk walk(m_root);
    if (const auto failed = walk.go(path, links))
        return failure(path, failed);
    return m_root / walk.reached();
}

Result<std::string> PosixFileManager::locate(const MacPath& path, Links links) const {
    if (const auto refused = refusalAt(path))
        return failure(path, refused);
    // The host's own volume needs no detour: the system follows the links itself.
    if (m_root.string() == "/") {
        if (const auto refused = refusal(path.string()))
            return failure(path, refused);
        return path.string();
    }
    const auto host = hostPath(path, links);
    if (!host)
        return host.error();
    return host->string();
}

std::error_code PosixFileManager::look(const MacPath& path, Links links, struct stat& status) const {
    if (m_root.string() == "/") {
        const auto refused = refusal(path.string());
        return refused ? refused : ask(path.string(), links, status);
    }
    Walk walk(m_root);
    const auto failed = walk.go(path, links);
    return failed ? failed : walk.look(links, status);
}

Result<std::string> PosixFileManager::locateEntry(const MacPath& path) const {
    const std::string name = path.name();
    if (name.empty() || name == "." || name == "..")
        return failure(path, path.empty() ? std::errc::no_such_file_or_directory : std::errc::invalid_argument);
    return locate(path, Links::dontFollow);
}

Result<MacPath> PosixFileManager::resolveLinks(const MacPath& path) const {
    Walk walk(m_root);
    struct stat status{};
    auto failed = walk.go(path, Links::follow);
    if (!failed)
        failed = walk.look(Links::follow, status);
    if (failed)
        return failure(path, failed);
    return MacPath(walk.reached());
}

Error PosixFileManager::failure(const MacPath& path, std::error_code reason) {
    return {path.string() + ": " + reason.message(), reason.value()};
}

Error PosixFileManager::failure(const MacPath& path, std::errc reason) {
    return failure(path, std::make_error_code(reason));
}

} // namespace tavrik
