#include "backups/TemporaryDatabase.h"

#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/Volume.h"

#include <algorithm>
#include <cerrno>
#include <span>

namespace tavrik {

namespace {

/// Two bytes of a database's header, for writers and for readers, that tell the journal it is used with.
constexpr std::size_t kJournalMode = 18;
constexpr std::uint8_t kRollback = 1;
constexpr std::uint8_t kWriteAhead = 2;

std::span<std::uint8_t> journalModeOf(Bytes& database) {
    const std::size_t begin = std::min(kJournalMode, database.size());
    return std::span(database).subspan(begin, std::min<std::size_t>(2, database.size() - begin));
}

} // namespace

TemporaryDatabase::TemporaryDatabase(Mac& mac, const MacPath& file) : m_mac(mac), m_file(file) {}

TemporaryDatabase::~TemporaryDatabase() {
    m_connection.reset();
    if (!m_isThere)
        return;
    if (const Status removed = remove(m_mac, m_file); !removed)
        log("⚠️ Could not remove " + m_file.string() + ": " + removed.error().description);
}

Status TemporaryDatabase::remove(Mac& mac, const MacPath& file) {
    Status outcome = Done{};
    // The file last: as long as it is there, what stands beside it belongs to it.
    for (const char* suffix : {"-journal", "-wal", "-shm", ""}) {
        const Status removed = mac.files.remove(MacPath(file.string() + suffix));
        if (!removed && removed.error().code != ENOENT)
            outcome = removed;
    }
    return outcome;
}

Status TemporaryDatabase::open(Bytes& database) {
    // A journal or a log of another file would be played back into this one.
    if (Status removed = remove(m_mac, m_file); !removed)
        return removed;

    // A file that says write-ahead log would be given one.
    const auto journalMode = journalModeOf(database);
    m_wasInWalMode = journalMode.size() == 2 &&
                     std::ranges::all_of(journalMode, [](std::uint8_t mode) { return mode == kWriteAhead; });
    if (m_wasInWalMode)
        std::ranges::fill(journalMode, kRollback);
    Status created = m_mac.files.create(m_file, database);
    if (m_wasInWalMode)
        std::ranges::fill(journalMode, kWriteAhead);
    if (!created)
        return created;
    m_isThere = true;
    return connect();
}

Status TemporaryDatabase::connect() {
    const HostPath host = m_mac.volume.hostPath(m_file);
    m_connection = host.empty() ? std::nullopt : sqlite::Connection::open(host, sqlite::OpenMode::readWrite);
    if (!m_connection)
        return Error{"unable to open database file", sqlite::kCannotOpen};
    const bool isReady = m_connection->disableTriggers() &&
                         m_connection->execute("PRAGMA locking_mode = EXCLUSIVE; PRAGMA journal_mode = OFF; "
                                               "PRAGMA synchronous = OFF; PRAGMA cache_size = -131072") &&
                         m_connection->execute("BEGIN EXCLUSIVE TRANSACTION");
    return isReady ? Status(Done{}) : Status(sqliteError());
}

Result<Bytes> TemporaryDatabase::finish() {
    if (!m_connection->execute("COMMIT"))
        return sqliteError();
    m_connection.reset();
    Result<Bytes> database = m_mac.files.read(m_file);
    if (database && m_wasInWalMode)
        std::ranges::fill(journalModeOf(*database), kWriteAhead);
    return database;
}

Error TemporaryDatabase::sqliteError() const {
    return {m_connection->lastError(), m_connection->lastErrorCode()};
}

} // namespace tavrik
