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
#include <vector>

namespace tavrik {

namespace {

constexpr int kMostLinks = 40;

/// Walks a path component by component below a folder of the host, which it never leaves.
class Walk {
public:
    explicit Walk(std::string root) : m_root(std::move(root)), m_host(m_root) {}

    std::error_code go(std::string_view path, Links links) {
        push(path);
        while (!m_ahead.empty()) {
            const std::string component = std::move(m_ahead.back());
            m_ahead.pop_back();
            if (const auto failed = step(component, m_ahead.empty() && links == Links::dontFollow))
                return failed;
        }
        return {};
    }

    /// Where it has come to, seen from the root.
    std::string reached() const { return m_host.size() == m_root.size() ? "/" : m_host.substr(m_root.size()); }

private:
    void push(std::string_view path) {
        const std::size_t before = m_ahead.size();
        while (!path.empty()) {
            const std::size_t length = std::min(path.find('/'), path.size());
            if (length > 0)
                m_ahead.emplace_back(path.substr(0, length));
            path.remove_prefix(std::min(length + 1, path.size()));
        }
        std::reverse(m_ahead.begin() + static_cast<std::ptrdiff_t>(before), m_ahead.end());
    }

    std::error_code step(const std::string& component, bool takeAsItIs) {
        if (component == "." || component == "..") {
            if (const auto failed = expectFolder())
                return failed;
            if (component == ".." && m_host.size() > m_root.size())
                m_host.resize(m_host.rfind('/'));
            return {};
        }
        const std::size_t before = m_host.size();
        m_host += '/';
        m_host += component;
        if (takeAsItIs)
            return {};
        std::array<char, PATH_MAX> target{};
        const ssize_t length = ::readlink(m_host.c_str(), target.data(), target.size());
        if (length < 0)
            return afterNoLink(errno);
        if (++m_links > kMostLinks)
            return std::make_error_code(std::errc::too_many_symbolic_link_levels);
        const std::string_view text(target.data(), static_cast<std::size_t>(length));
        if (text.empty())
            return std::make_error_code(std::errc::no_such_file_or_directory);
        m_host.resize(text.front() == '/' ? m_root.size() : before);
        push(text);
        return {};
    }

    /// What asking for a link's target came to, where there was none to read.
    std::error_code afterNoLink(int code) const {
        const bool isNoLink = code == EINVAL;
        const bool lastIsMissing = code == ENOENT && m_ahead.empty();
        return isNoLink || lastIsMissing ? std::error_code() : std::error_code(code, std::generic_category());
    }

    std::error_code expectFolder() const {
        struct stat status{};
        if (m_host.size() == m_root.size())
            return {};
        if (::lstat(m_host.c_str(), &status) != 0)
            return lastError();
        return S_ISDIR(status.st_mode) ? std::error_code() : std::make_error_code(std::errc::not_a_directory);
    }

    const std::string m_root; // without a "/" at its end: empty for the host's own root
    std::string m_host;
    std::vector<std::string> m_ahead; // the next one last
    int m_links = 0;
};

std::optional<std::error_code> refusal(const std::string& path) {
    if (path.empty())
        return std::make_error_code(std::errc::no_such_file_or_directory);
    if (path.front() != '/' || path.find('\0') != std::string::npos)
        return std::make_error_code(std::errc::invalid_argument);
    return std::nullopt;
}

} // namespace

Result<MacPath> PosixFileManager::resolve(const MacPath& path, Links links) const {
    if (const auto refused = refusal(path.string()))
        return failure(path, *refused);
    Walk walk(m_root.string() == "/" ? std::string() : m_root.string());
    if (const auto failed = walk.go(path.string(), links))
        return failure(path, failed);
    return MacPath(walk.reached());
}

Result<HostPath> PosixFileManager::hostPath(const MacPath& path, Links links) const {
    const auto resolved = resolve(path, links);
    if (!resolved)
        return resolved.error();
    return m_root / resolved->string();
}

Result<std::string> PosixFileManager::locate(const MacPath& path, Links links) const {
    // The host's own volume needs no detour: the system follows the links itself.
    if (m_root.string() == "/") {
        if (const auto refused = refusal(path.string()))
            return failure(path, *refused);
        return path.string();
    }
    const auto host = hostPath(path, links);
    if (!host)
        return host.error();
    return host->string();
}

Result<std::string> PosixFileManager::locateEntry(const MacPath& path) const {
    const std::string name = path.name();
    if (name.empty() || name == "." || name == "..")
        return failure(path, path.empty() ? std::errc::no_such_file_or_directory : std::errc::invalid_argument);
    return locate(path, Links::dontFollow);
}

Result<MacPath> PosixFileManager::resolveLinks(const MacPath& path) const {
    auto resolved = resolve(path, Links::follow);
    if (!resolved)
        return resolved;
    const auto present = attributes(*resolved, Links::dontFollow);
    if (!present)
        return failure(path, std::error_code(present.error().code, std::generic_category()));
    return resolved;
}

Error PosixFileManager::failure(const MacPath& path, std::error_code reason) {
    return {path.string() + ": " + reason.message(), reason.value()};
}

Error PosixFileManager::failure(const MacPath& path, std::errc reason) {
    return failure(path, std::make_error_code(reason));
}

} // namespace tavrik
