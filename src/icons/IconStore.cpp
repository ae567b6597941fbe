#include "icons/IconStore.h"

#include "icons/IconCache.h"
#include "icons/IconFiles.h"
#include "icons/IconSweep.h"
#include "model/SettingsManager.h"
#include "platform/AtomicFile.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/PathComponent.h"
#include "platform/PlainFolders.h"
#include "platform/Png.h"

#include <algorithm>
#include <cerrno>
#include <iterator>

namespace tavrik {

namespace {

std::vector<MacPath> pathsOf(const std::vector<NumberedIcon>& icons) {
    std::vector<MacPath> paths;
    paths.reserve(icons.size());
    for (const NumberedIcon& icon : icons)
        paths.push_back(icon.path);
    return paths;
}

bool isFolder(const FileManager& files, const MacPath& path) {
    const auto present = files.attributes(path, Links::dontFollow);
    return present && present->type == FileType::folder;
}

int highestNumber(const std::vector<NumberedIcon>& icons) {
    return icons.empty() ? -1 : icons.back().number;
}

} // namespace

IconStore::IconStore(FileManager& files, const SettingsManager& settings, IconCache& cache)
    : m_files(files),
      m_cache(cache),
      m_appSupportURL(settings.appSupportURL()),
      m_iconCacheURL(settings.iconCacheURL()),
      m_pendingIconsBaseURL(m_appSupportURL / "PendingChanges/Icons") {}

Result<MacPath> IconStore::safeFolder(const MacPath& base, const std::string& bundleID) const {
    if (!isSafePathComponent(bundleID))
        return Error{"\"" + bundleID + "\" cannot name a folder", EINVAL};
    MacPath folder = base / bundleID;
    if (const Status safe = checkPlainFolders(m_files, m_appSupportURL, folder); !safe)
        return safe.error();
    return folder;
}

/// Most applications have no icons, and are asked about often: one look is enough for them.
Result<std::vector<NumberedIcon>> IconStore::icons(const MacPath& base, const std::string& bundleID) const {
    if (isSafePathComponent(bundleID)) {
        const auto present = m_files.attributes(base / bundleID, Links::dontFollow);
        if (!present && present.error().code == ENOENT)
            return std::vector<NumberedIcon>();
    }
    const auto folder = safeFolder(base, bundleID);
    if (!folder)
        return folder.error();
    return numberedIcons(m_files, *folder);
}

std::optional<IconPicture> IconStore::iconPicture(const QImage& image) {
    auto png = png::encode(image);
    if (png)
        return IconPicture{image, std::move(*png)};
    log("Failed to convert icon to PNG");
    return std::nullopt;
}

std::optional<MacPath> IconStore::savePendingIcon(const QImage& image, const std::string& bundleID) {
    const auto picture = iconPicture(image);
    return picture ? savePendingIcon(*picture, bundleID) : std::nullopt;
}

std::optional<MacPath> IconStore::savePendingIcon(const IconPicture& picture, const std::string& bundleID) {
    const auto failed = [](const Error& error) {
        log("Failed to save pending icon: " + error.description);
        return std::nullopt;
    };
    const auto folder = safeFolder(m_pendingIconsBaseURL, bundleID);
    if (!folder)
        return failed(folder.error());

    const std::lock_guard lock(m_pendingLock);
    if (const Status created = createPlainFolder(m_files, m_appSupportURL, *folder); !created)
        return failed(created.error());
    const int index = nextAvailableIndex(bundleID);
    MacPath path = *folder / iconFileName(index);
    if (!iconIndex(path.name()))
        return failed({path.string() + " is no name of an icon", EINVAL});
    if (const Status cleared = clearThumbnails(m_files, path); !cleared)
        return failed(cleared.error());
    if (const Status created = createAtomically(m_files, path, picture.png); !created)
        return failed(created.error());
    m_cache.insert(path, picture.image);
    log("💾 Saved pending icon to: " + path.string() + " with index " + std::to_string(index));
    return path;
}

int IconStore::nextAvailableIndex(const std::string& bundleID) const {
    // The pending ones are read first: an icon that is transferred meanwhile is then seen twice, not missed.
    const auto pending = icons(m_pendingIconsBaseURL, bundleID);
    const auto permanent = icons(m_iconCacheURL, bundleID);
    if (!permanent || !pending)
        log("Warning: Failed to read icon directory for " + bundleID);

    int highest = -1;
    const auto count = [&highest](const auto& found, const std::string& kind) {
        if (!found)
            return;
        for (const NumberedIcon& icon : *found)
            log("  Found " + kind + " icon_" + std::to_string(icon.number));
        highest = std::max(highest, highestNumber(*found));
    };
    count(permanent, "permanent");
    count(pending, "pending");
    log("📊 Next available index for " + bundleID + ": " + std::to_string(highest + 1) +
        " (highest found: " + std::to_string(highest) + ")");
    return highest + 1;
}

std::vector<MacPath> IconStore::listIcons(const std::string& bundleID) const {
    const auto found = icons(m_iconCacheURL, bundleID);
    if (found)
        return pathsOf(*found);
    log("Warning: Failed to read icon directory for " + bundleID);
    return {};
}

std::vector<MacPath> IconStore::listPendingIcons(const std::string& bundleID) const {
    const auto found = icons(m_pendingIconsBaseURL, bundleID);
    return found ? pathsOf(*found) : std::vector<MacPath>();
}

Result<std::vector<MacPath>> IconStore::listAllIcons(const std::string& bundleID) const {
    const auto permanent = icons(m_iconCacheURL, bundleID);
    if (!permanent)
        return permanent.error();
    const auto pending = icons(m_pendingIconsBaseURL, bundleID);
    if (!pending)
        return pending.error();
    std::vector<MacPath> all = pathsOf(*permanent);
    std::ranges::copy(pathsOf(*pending), std::back_inserter(all));
    return all;
}

void IconStore::deleteIconAndReindex(const std::string& bundleID, int index) {
    const std::vector<MacPath> found = listIcons(bundleID);
    if (index < 0 || static_cast<std::size_t>(index) >= found.size())
        return;
    const MacPath& icon = found[static_cast<std::size_t>(index)];
    if (const auto removed = removeIcon(m_files, m_cache, icon); !removed) {
        log("Failed to delete icon: " + removed.error().description);
        return;
    }
    renumber(bundleID);
}

std::vector<MacPath> IconStore::renumber(const std::string& bundleID) {
    const auto folder = safeFolder(m_iconCacheURL, bundleID);
    const Status done = folder ? renumberIcons(m_files, m_cache, *folder) : Status(folder.error());
    if (!done)
        log("Failed to renumber the icons of " + bundleID + ": " + done.error().description);
    return listIcons(bundleID);
}

bool IconStore::deletePermanentIcon(const std::string& bundleID, int index) {
    const auto folder = safeFolder(m_iconCacheURL, bundleID);
    if (!folder || folder->name() != bundleID) {
        log("  ❌ SAFETY: Refusing to delete - invalid directory structure");
        return false;
    }
    if (index < 0)
        return true;
    const std::string name = iconFileName(index);
    const auto removed = removeIcon(m_files, m_cache, *folder / name);
    if (!removed) {
        log("  Failed to delete " + name + ": " + removed.error().description);
        return false;
    }
    if (*removed)
        log("  Deleted: " + name);
    return true;
}

void IconStore::deletePendingIcon(const MacPath& path) {
    const std::string bundleID = path.parent().name();
    const std::lock_guard lock(m_pendingLock);
    const auto folder = safeFolder(m_pendingIconsBaseURL, bundleID);
    if (!folder || path != *folder / path.name() || !iconIndex(path.name())) {
        log("⚠️ Refusing to delete what is not a pending icon: " + path.string());
        return;
    }
    if (const auto removed = removeIcon(m_files, m_cache, path); !removed) {
        log("⚠️ Failed to delete pending icon: " + removed.error().description);
        return;
    }
    log("🗑️ Deleted pending icon and cleared cache: " + path.string());
}

std::optional<MacPath> IconStore::transferPendingIcon(const MacPath& path, const std::string& bundleID) {
    const auto failed = [&path](const std::string& why) {
        log("⚠️ WARNING: Failed to transfer pending icon at " + path.string());
        log("  " + why);
        return std::nullopt;
    };
    const std::lock_guard lock(m_pendingLock);
    const auto source = safeFolder(m_pendingIconsBaseURL, bundleID);
    const auto target = safeFolder(m_iconCacheURL, bundleID);
    if (!source || !target)
        return failed(!source ? source.error().description : target.error().description);
    const auto number = iconIndex(path.name());
    if (!number || path != *source / path.name())
        return failed("It is no pending icon of " + bundleID);
    if (const Status created = createPlainFolder(m_files, m_appSupportURL, *target); !created)
        return failed(created.error().description);
    const auto present = numberedIcons(m_files, *target);
    if (!present)
        return failed(present.error().description);

    MacPath place = *target / iconFileName(std::max(*number, highestNumber(*present) + 1));
    if (const Status moved = moveIcon(m_files, m_cache, path, place); !moved)
        return failed(moved.error().description);
    return place;
}

bool IconStore::removePendingFolder(const std::string& bundleID) {
    const auto folder = safeFolder(m_pendingIconsBaseURL, bundleID);
    if (folder && removeIconFolder(m_files, m_cache, *folder))
        return true;
    log("⚠️ Failed to cleanup pending icons for " + bundleID);
    return false;
}

void IconStore::cleanUpPendingIcons(const std::string& bundleID) {
    const std::lock_guard lock(m_pendingLock);
    if (removePendingFolder(bundleID))
        log("🧹 Cleaned up pending icons for: " + bundleID);
}

void IconStore::cleanUpAllPendingIcons() {
    const std::lock_guard lock(m_pendingLock);
    const Status safe = checkPlainFolders(m_files, m_appSupportURL, m_pendingIconsBaseURL);
    const auto names = safe ? m_files.list(m_pendingIconsBaseURL) : safe.error();
    bool failed = false;
    for (const std::string& bundleID : names ? *names : std::vector<std::string>()) {
        if (isSafePathComponent(bundleID) && isFolder(m_files, m_pendingIconsBaseURL / bundleID))
            failed = !removePendingFolder(bundleID) || failed;
    }
    const Status removed = safe ? removeIconFolder(m_files, m_cache, m_pendingIconsBaseURL) : safe;
    if (removed)
        log("🧹 Cleaned up all pending icons");
    else if (!failed)
        log("⚠️ Failed to cleanup pending icons for all applications");
}

bool IconStore::removePendingFolderIfEmpty(const std::string& bundleID) {
    const std::lock_guard lock(m_pendingLock);
    const auto folder = safeFolder(m_pendingIconsBaseURL, bundleID);
    if (!folder || !m_files.exists(*folder))
        return false;
    const auto left = numberedIcons(m_files, *folder);
    if (!left || !left->empty())
        return false;
    sweepIconFolder(m_files, m_cache, *folder, {});
    const auto present = m_files.attributes(*folder, Links::dontFollow);
    return !present && present.error().code == ENOENT;
}

void IconStore::removeUnnamedPendingIcons(const std::set<MacPath>& named) {
    const std::lock_guard lock(m_pendingLock);
    if (!checkPlainFolders(m_files, m_appSupportURL, m_pendingIconsBaseURL))
        return;
    const auto names = m_files.list(m_pendingIconsBaseURL);
    if (!names)
        return;
    for (const std::string& name : *names) {
        const MacPath path = m_pendingIconsBaseURL / name;
        const auto present = m_files.attributes(path, Links::dontFollow);
        if (present && present->type == FileType::symbolicLink)
            ignoreFailure(m_files.remove(path));
        else if (present && present->type == FileType::folder && isSafePathComponent(name))
            sweepIconFolder(m_files, m_cache, path, named);
    }
}

bool IconStore::ownsPath(const MacPath& path, const std::string& bundleID) const {
    if (!isSafePathComponent(bundleID) || !iconIndex(path.name()))
        return false;
    return path == m_iconCacheURL / bundleID / path.name() ||
           path == m_pendingIconsBaseURL / bundleID / path.name();
}

} // namespace tavrik
