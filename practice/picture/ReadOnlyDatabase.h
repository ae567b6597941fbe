#pragma once

#include "platform/Path.h"
#include "platform/Result.h"
#include "platform/Sqlite.h"

#include <QTemporaryDir>

#include <memory>

namespace tavrik::practice {

/// A database opened so that nothing beside it is written, made or removed, in use or not. A database in
/// write-ahead mode whose companions are not both there cannot be read in place without making them: a copy in
/// a temporary folder, gone with this object, is read instead, with what its log holds.
class ReadOnlyDatabase {
public:
    static Result<ReadOnlyDatabase> open(const HostPath& file);

    sqlite::Connection& connection() { return m_connection; }

private:
    ReadOnlyDatabase(std::unique_ptr<QTemporaryDir> copy, sqlite::Connection connection);

    std::unique_ptr<QTemporaryDir> m_copy; ///< outlives the connection
    sqlite::Connection m_connection;
};

} // namespace tavrik::practice
