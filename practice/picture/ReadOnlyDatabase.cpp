#include "practice/picture/ReadOnlyDatabase.h"

#include <QFile>
#include <QFileInfo>

#include <optional>
#include <utility>

namespace tavrik::practice {

namespace {

constexpr int kBusyTimeout = 2000; ///< milliseconds; the Dock's own transactions are short

QString hostName(const HostPath& file) {
    return QString::fromStdString(file.string());
}

/// The byte of the header that tells the journal mode of readers is 2 in write-ahead mode.
bool isInWriteAheadMode(const QString& file) {
    constexpr qint64 kReadVersion = 19;
    QFile database(file);
    char version = 0;
    return database.open(QIODevice::ReadOnly) && database.seek(kReadVersion) && database.getChar(&version) &&
           version == 2;
}

bool canBeReadInPlace(const QString& file) {
    const auto isThere = [&](const char* ending) { return QFileInfo::exists(file + QLatin1String(ending)); };
    return !isInWriteAheadMode(file) || (isThere("-wal") && isThere("-shm"));
}

std::optional<sqlite::Connection> openAndTry(const HostPath& file, sqlite::OpenMode mode) {
    auto connection = sqlite::Connection::open(file, mode);
    if (!connection)
        return std::nullopt;
    connection->setBusyTimeout(kBusyTimeout);
    if (!connection->execute("SELECT count(*) FROM sqlite_master"))
        return std::nullopt;
    return connection;
}

/// Copies the database and its log into a new folder; null when that fails.
std::unique_ptr<QTemporaryDir> copyOf(const QString& file) {
    auto folder = std::make_unique<QTemporaryDir>();
    if (!folder->isValid() || !QFile::copy(file, folder->filePath(QStringLiteral("db"))))
        return nullptr;
    const QString log = file + QStringLiteral("-wal");
    if (QFileInfo::exists(log) && !QFile::copy(log, folder->filePath(QStringLiteral("db-wal"))))
        return nullptr;
    for (const QString& name : {QStringLiteral("db"), QStringLiteral("db-wal")})
        QFile::setPermissions(folder->filePath(name), QFile::ReadOwner | QFile::WriteOwner);
    return folder;
}

} // namespace

ReadOnlyDatabase::ReadOnlyDatabase(std::unique_ptr<QTemporaryDir> copy, sqlite::Connection connection)
    : m_copy(std::move(copy)),
      m_connection(std::move(connection)) {}

Result<ReadOnlyDatabase> ReadOnlyDatabase::open(const HostPath& file) {
    const QString name = hostName(file);
    if (canBeReadInPlace(name)) {
        if (auto connection = openAndTry(file, sqlite::OpenMode::readOnly))
            return ReadOnlyDatabase(nullptr, std::move(*connection));
    }
    if (auto copy = copyOf(name)) {
        const HostPath copied(copy->filePath(QStringLiteral("db")).toStdString());
        if (auto connection = openAndTry(copied, sqlite::OpenMode::readWrite))
            return ReadOnlyDatabase(std::move(copy), std::move(*connection));
    }
    return Error{"The database " + file.string() + " cannot be read."};
}

} // namespace tavrik::practice
