#include "backups/SafetyCopies.h"

#include "platform/AtomicFile.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/PropertyList.h"
#include "platform/SqliteCopy.h"
#include "platform/Volume.h"

#include <algorithm>
#include <cerrno>
#include <utility>
#include <vector>

namespace tavrik {

namespace {

constexpr const char* kEnding = ".pre-restore-backup";
constexpr const char* kWriteAheadLog = "-wal";

MacPath withEnding(const MacPath& path, const char* ending) {
    return path.parent() / (path.name() + ending);
}

bool isThere(const FileManager& files, const MacPath& path) {
    return bool(files.attributes(path, Links::dontFollow));
}

Status removeIfThere(FileManager& files, const MacPath& path) {
    Status removed = files.remove(path);
    return removed || removed.error().code != ENOENT ? removed : Status(Done{});
}

/// Nothing when there is no file. A link is followed.
Result<std::optional<Bytes>> readIfThere(const FileManager& files, const MacPath& path) {
    Result<Bytes> content = files.read(path);
    if (content)
        return std::optional(std::move(*content));
    return content.error().code == ENOENT ? Result<std::optional<Bytes>>(std::nullopt) : content.error();
}

bool isGoodDockPlist(ByteView dockPlist) {
    const auto list = plist::parse(dockPlist);
    return list && list->as<plist::Dictionary>();
}

bool isGoodDatabase(const Bytes& database, const BackupContents& restored) {
    return std::holds_alternative<BackupContents>(checkContents({restored.dockPlist, database}));
}

/// Whether nobody has changed a row. Copying a database, or opening it for a write-ahead log, changes a few
/// bytes of its header: the versions of format and library, and the counter of changes.
bool isSameDatabase(Bytes first, Bytes second) {
    constexpr std::pair<std::size_t, std::size_t> kVolatile[] = {{18, 20}, {24, 28}, {92, 100}};
    constexpr std::size_t kHeaderSize = 100;
    for (Bytes* each : {&first, &second}) {
        if (each->size() < kHeaderSize)
            return false;
        for (const auto& [from, to] : kVolatile)
            std::fill(each->data() + from, each->data() + to, std::uint8_t{0});
    }
    return first == second;
}

} // namespace

SafetyCopies::SafetyCopies(Mac& mac, MacPath dockPlist, MacPath launchpadDatabase)
    : m_mac(mac),
      m_dockPlist(std::move(dockPlist)),
      m_database(std::move(launchpadDatabase)),
      m_dockCopy(withEnding(m_dockPlist, kEnding)),
      m_databaseCopy(withEnding(m_database, kEnding)),
      m_databaseCopyLog(withEnding(m_databaseCopy, kWriteAheadLog)) {}

Status SafetyCopies::make(const BackupContents& restored) {
    const Wanted dock = wantedOfDock(restored);
    const Wanted database = dock ? wantedOfDatabase(restored) : dock;
    if (!database)
        return database.error();

    const bool hadDock = isThere(m_mac.files, m_dockCopy);
    const bool hadDatabase = isThere(m_mac.files, m_databaseCopy);
    if (*dock) {
        if (Status made = writeAtomically(m_mac.files, m_dockCopy, (*dock)->file); !made)
            return made;
    }
    if (*database) {
        if (Status made = replaceDatabaseCopy(**database); !made)
            return made;
    }

    if (*dock && hadDock)
        log("🧹 Removed existing dock safety backup");
    if (*database && hadDatabase)
        log("🧹 Removed existing db safety backup");
    if (*dock)
        log("✅ Created dock safety backup");
    if (*database)
        log("✅ Created launchpad safety backup");
    return Done{};
}

SafetyCopies::Wanted SafetyCopies::wantedOfDock(const BackupContents& restored) const {
    auto live = readIfThere(m_mac.files, m_dockPlist);
    if (!live)
        return live.error();
    if (!*live || (*live)->empty())
        return std::optional<Content>();
    if (**live == restored.dockPlist || !isGoodDockPlist(**live)) {
        const auto copy = readIfThere(m_mac.files, m_dockCopy);
        if (!copy)
            return copy.error();
        if (*copy && isGoodDockPlist(**copy)) {
            log("ℹ️ Kept the dock safety backup of an earlier restore");
            return std::optional<Content>();
        }
    }
    return std::optional(Content{std::move(**live), std::nullopt});
}

SafetyCopies::Wanted SafetyCopies::wantedOfDatabase(const BackupContents& restored) const {
    auto live = readDatabase(m_database);
    if (!live)
        return live.error();
    if (!*live || ((*live)->file.empty() && !(*live)->writeAheadLog))
        return std::optional<Content>();
    const bool isRestored =
        !(*live)->writeAheadLog && isSameDatabase((*live)->file, restored.launchpadDatabase);
    if (isRestored || !isGoodDatabase((*live)->file, restored)) {
        const auto copy = readDatabase(m_databaseCopy);
        if (!copy)
            return copy.error();
        if (*copy && isGoodDatabase((*copy)->file, restored)) {
            log("ℹ️ Kept the db safety backup of an earlier restore");
            return std::optional<Content>();
        }
    }
    return std::move(*live);
}

/// What the database holds, or, where it cannot be read as one, its files as they are.
Result<std::optional<SafetyCopies::Content>> SafetyCopies::readDatabase(const MacPath& database) const {
    const auto present = m_mac.files.attributes(database);
    if (!present)
        return present.error().code == ENOENT ? Result<std::optional<Content>>(std::nullopt) : present.error();
    if (Result<Bytes> whole = sqlite::copyOf(m_mac.volume.hostPath(database)))
        return std::optional(Content{std::move(*whole), std::nullopt});
    auto file = readIfThere(m_mac.files, database);
    auto writeAheadLog = file ? readIfThere(m_mac.files, withEnding(database, kWriteAheadLog)) : file;
    if (!writeAheadLog)
        return writeAheadLog.error();
    return std::optional(Content{std::move(*file).value_or(Bytes()), std::move(*writeAheadLog)});
}

/// Never puts a database beside a log that is not its own.
Status SafetyCopies::replaceDatabaseCopy(const Content& content) {
    if (Status removed = removeIfThere(m_mac.files, m_databaseCopyLog); !removed)
        return removed;
    if (content.writeAheadLog) {
        if (Status removed = removeIfThere(m_mac.files, m_databaseCopy); !removed)
            return removed;
        if (Status made = writeAtomically(m_mac.files, m_databaseCopyLog, *content.writeAheadLog); !made)
            return made;
    }
    return writeAtomically(m_mac.files, m_databaseCopy, content.file);
}

std::set<std::string> SafetyCopies::namesBesideDatabase() const {
    return {m_databaseCopy.name(), m_databaseCopyLog.name()};
}

Status SafetyCopies::remove() {
    Status first = Done{};
    for (const MacPath& copy : {m_dockCopy, m_databaseCopyLog, m_databaseCopy}) {
        if (Status removed = removeIfThere(m_mac.files, copy); !removed && first)
            first = removed;
    }
    return first;
}

} // namespace tavrik
