#include "icons/IconWhereabouts.h"

#include "icons/IconStore.h"
#include "platform/FileManager.h"

#include <algorithm>
#include <cerrno>

namespace tavrik {

Result<IconWhereabouts> IconWhereabouts::look(const FileManager& files, const IconStore& store,
                                              const std::string& bundleID) {
    const auto icons = store.listAllIcons(bundleID);
    if (!icons)
        return icons.error();
    IconWhereabouts found;
    for (const MacPath& path : *icons) {
        const auto present = files.attributes(path, Links::dontFollow);
        if (!present && present.error().code != ENOENT)
            return present.error();
        if (!present || present->type != FileType::file)
            continue;
        const FileIdentity identity{present->fileID, present->size};
        found.m_identities.emplace(path, identity);
        found.m_paths.emplace(identity, path);
    }
    return found;
}

std::optional<MacPath> IconWhereabouts::find(const std::optional<FileIdentity>& identity) const {
    const auto place = identity ? m_paths.find(*identity) : m_paths.end();
    return place == m_paths.end() ? std::nullopt : std::optional(place->second);
}

std::optional<FileIdentity> IconWhereabouts::identity(const MacPath& path) const {
    const auto present = m_identities.find(path);
    return present == m_identities.end() ? std::nullopt : std::optional(present->second);
}

std::int64_t IconWhereabouts::countIn(const MacPath& folder) const {
    return std::ranges::count_if(m_identities, [&](const auto& icon) { return icon.first.parent() == folder; });
}

std::optional<FileIdentity> IconWhereabouts::recognize(const RecordedIcon& icon,
                                                       const TransferRecord& record) const {
    if (find(icon.identity))
        return icon.identity;
    const auto present = identity(icon.path);
    const auto isThere = [&](const RecordedIcon& other) { return other.identity == present; };
    if (!present || std::ranges::any_of(record.shown, isThere) || std::ranges::any_of(record.marked, isThere) ||
        (record.selected && isThere(*record.selected)))
        return std::nullopt;
    return present;
}

} // namespace tavrik
