#include "backups/BackupFolder.h"

#include "platform/AtomicFile.h"
#include "platform/Clock.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/PlainFolders.h"

#include <QDateTime>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <tuple>

namespace tavrik {

namespace {

constexpr int kMostNames = 10; ///< that a dated backup tries, one each second
constexpr const char* kUnfinished = ".new";

std::string fileName(Date date) {
    const auto seconds = static_cast<qint64>(std::floor(toUnix(date)));
    const QDateTime local = QDateTime::fromSecsSinceEpoch(seconds, Qt::LocalTime);
    return local.toString(QStringLiteral("yyyy-MM-dd_HH-mm-ss")).toStdString() + "." + BackupFolder::kExtension;
}

bool isBackupName(const std::string& name) {
    return !name.starts_with('.') && MacPath(name).extension() == BackupFolder::kExtension;
}

std::chrono::milliseconds untilNextSecond(Date now) {
    const double left = std::floor(now.sinceReference) + 1 - now.sinceReference;
    return std::chrono::milliseconds(std::clamp(static_cast<int>(std::ceil(left * 1000)), 1, 1000));
}

} // namespace

BackupFolder::BackupFolder(Mac& mac, const MacPath& supportFolder)
    : m_files(mac.files),
      m_clock(mac.clock),
      m_supportFolder(supportFolder),
      m_path(supportFolder / "Backups") {}

// What is there

Result<std::vector<BackupFolder::Entry>> BackupFolder::read() const {
    if (const Status safe = checkPlainFolders(m_files, m_supportFolder, m_path); !safe)
        return safe.error();
    const auto names = m_files.list(m_path);
    if (!names && names.error().code == ENOENT)
        return std::vector<Entry>();
    if (!names)
        return names.error();

    std::vector<Entry> entries;
    for (const std::string& name : *names) {
        if (!isBackupName(name))
            continue;
        const MacPath url = m_path / name;
        const auto found = m_files.attributes(url, Links::dontFollow);
        if (!found && found.error().code != ENOENT)
            return found.error();
        if (found && found->type == FileType::file)
            entries.push_back({.url = url, .date = found->created, .size = found->size});
    }
    std::ranges::sort(entries, {}, [](const Entry& entry) { return std::tie(entry.date, entry.url); });
    return entries;
}

std::vector<BackupFolder::Entry> BackupFolder::entries() const {
    auto found = read();
    if (!found) {
        log("Failed to list backups: " + found.error().description);
        return {};
    }
    return std::move(*found);
}

bool BackupFolder::isTaken(const MacPath& file) const {
    const auto found = m_files.attributes(file, Links::dontFollow);
    return found || found.error().code != ENOENT;
}

// A new one

Result<MacPath> BackupFolder::add(ByteView container, bool isFirst) {
    if (Status created = createPlainFolder(m_files, m_supportFolder, m_path); !created)
        return created.error();
    if (!isFirst)
        return addDated(container);
    const MacPath file = m_path / kOriginalState;
    if (Status written = createAtomically(m_files, file, container); !written)
        return written.error();
    return file;
}

Result<MacPath> BackupFolder::addDated(ByteView container) {
    for (int attempt = 1; attempt <= kMostNames; ++attempt) {
        const Date now = m_clock.now();
        const MacPath file = m_path / fileName(now);
        if (!isTaken(file)) {
            Status written = createAtomically(m_files, file, container);
            if (written)
                return file;
            if (written.error().code != EEXIST)
                return written.error();
        }
        m_clock.sleep(untilNextSecond(now));
    }
    return Error{"the names of " + std::to_string(kMostNames) + " seconds are taken in " + m_path.string(),
                 EEXIST};
}

// What goes

void BackupFolder::rotate(std::int64_t keep, const std::set<MacPath>& spared) {
    std::vector<Entry> dated = entries();
    const bool hasOriginalState =
        std::erase_if(dated, [](const Entry& entry) { return entry.url.name() == kOriginalState; }) > 0;

    const auto kept = static_cast<std::size_t>(std::max<std::int64_t>(keep, 1));
    const std::size_t excess = dated.size() > kept ? dated.size() - kept : 0;
    std::vector<MacPath> remaining;
    for (std::size_t number = 0; number < dated.size(); ++number) {
        const MacPath& url = dated[number].url;
        if (number >= excess || spared.contains(url)) {
            remaining.push_back(url);
        } else if (const Status removed = m_files.remove(url); !removed) {
            log("Failed to delete old backup: " + removed.error().description);
            remaining.push_back(url);
        } else {
            log("🗑️ Deleted old backup: " + url.name());
        }
    }
    // A newer one must not become the original state in the place of the oldest.
    if (!hasOriginalState && !remaining.empty() && !spared.contains(remaining.front()))
        makeOriginalState(remaining.front());
}

void BackupFolder::makeOriginalState(const MacPath& oldest) {
    Status renamed = m_files.move(oldest, m_path / kOriginalState);
    if (renamed)
        renamed = m_files.flush(m_path);
    if (renamed)
        log("♻️ Renamed oldest backup to Original State: " + oldest.name());
    else
        log("Failed to rename backup to Original State: " + renamed.error().description);
}

void BackupFolder::removeLeftovers() {
    if (!checkPlainFolders(m_files, m_supportFolder, m_path))
        return;
    const auto names = m_files.list(m_path);
    if (!names)
        return;
    for (const std::string& name : *names) {
        const MacPath file = m_path / name;
        if (!name.ends_with(kUnfinished) || !isBackupName(file.stem()))
            continue;
        const auto found = m_files.attributes(file, Links::dontFollow);
        if (found && found->type == FileType::file)
            ignoreFailure(m_files.remove(file));
    }
}

} // namespace tavrik
