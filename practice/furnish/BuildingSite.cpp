#include "practice/furnish/BuildingSite.h"

#include "practice/furnish/HostFiles.h"

#include <cerrno>
#include <filesystem>
#include <utility>

namespace tavrik::practice {

Result<BuildingSite> BuildingSite::claim(const HostPath& root) {
    const HostPath folder = folderFor(root);
    for (;;) {
        if (Status made = createHostFolder(folder, 0700); !made)
            return made.error();
        std::optional<FileLock> lock = FileLock::takeExisting(folder, FileLock::Wait::yes);
        if (!lock && errno != ENOENT)
            return hostError("lock", folder, lastError());
        // Whoever had the lock before may have moved or removed the folder meanwhile.
        if (!lock || !lock->isOf(folder))
            continue;
        BuildingSite site(folder, std::move(*lock));
        if (Status empty = site.clear(); !empty)
            return empty.error();
        return site;
    }
}

std::optional<BuildingSite> BuildingSite::tryClaim(const HostPath& root) {
    const HostPath folder = folderFor(root);
    if (!createHostFolder(folder, 0700))
        return std::nullopt;
    std::optional<FileLock> lock = FileLock::takeExisting(folder, FileLock::Wait::no);
    if (!lock || !lock->isOf(folder))
        return std::nullopt;
    return BuildingSite(folder, std::move(*lock));
}

BuildingSite::BuildingSite(HostPath folder, FileLock lock)
    : m_folder(std::move(folder)),
      m_lock(std::move(lock)) {}

BuildingSite::BuildingSite(BuildingSite&& other) noexcept
    : m_folder(std::move(other.m_folder)),
      m_lock(std::exchange(other.m_lock, std::nullopt)) {}

BuildingSite::~BuildingSite() {
    if (m_lock)
        ignoreFailure(removeHostTree(m_folder));
}

Status BuildingSite::moveTo(const HostPath& root) {
    Status moved = renameHost(m_folder, root);
    if (moved)
        m_lock.reset();
    return moved;
}

HostPath BuildingSite::folderFor(const HostPath& root) {
    return root.parent() / ("." + root.name() + ".furnishing");
}

Status BuildingSite::clear() const {
    std::error_code failure;
    for (const auto& entry : std::filesystem::directory_iterator(m_folder.string(), failure))
        if (Status removed = removeHostTree(HostPath(entry.path().string())); !removed)
            return removed;
    if (failure)
        return hostError("list", m_folder, failure);
    return Done{};
}

} // namespace tavrik::practice
