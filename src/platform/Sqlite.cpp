#include "platform/Sqlite.h"

#include "platform/Result.h"

#include <sqlite3.h>

#include <utility>

namespace tavrik::sqlite {

namespace {

std::optional<sqlite3*> openHandle(const char* file, int flags) {
    sqlite3* handle = nullptr;
    if (sqlite3_open_v2(file, &handle, flags, nullptr) == SQLITE_OK)
        return handle;
    sqlite3_close_v2(handle);
    return std::nullopt;
}

int flagsOf(OpenMode mode) {
    switch (mode) {
    case OpenMode::readWriteCreate:
        return SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    case OpenMode::readWrite:
        return SQLITE_OPEN_READWRITE;
    case OpenMode::readOnly:
        return SQLITE_OPEN_READONLY;
    }
    return SQLITE_OPEN_READONLY;
}

bool isNull(sqlite3_stmt* statement, int column) {
    return sqlite3_column_type(statement, column) == SQLITE_NULL;
}

} // namespace

std::optional<Connection> Connection::open(const HostPath& file, OpenMode mode) {
    const auto handle = openHandle(file.string().c_str(), flagsOf(mode));
    return handle ? std::optional(Connection(*handle)) : std::nullopt;
}

std::optional<Connection> Connection::openInMemory() {
    const auto handle = openHandle(":memory:", flagsOf(OpenMode::readWriteCreate));
    return handle ? std::optional(Connection(*handle)) : std::nullopt;
}

Connection::Connection(Connection&& other) noexcept : m_handle(std::exchange(other.m_handle, nullptr)) {}

Connection& Connection::operator=(Connection&& other) noexcept {
    const Connection old(std::exchange(m_handle, std::exchange(other.m_handle, nullptr)));
    return *this;
}

Connection::~Connection() {
    sqlite3_close_v2(m_handle);
}

bool Connection::execute(const char* sql) {
    return sqlite3_exec(m_handle, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

Statement Connection::prepare(std::string_view sql) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(m_handle, sql.data(), static_cast<int>(sql.size()), &statement, nullptr);
    return Statement(statement);
}

bool Connection::inTransaction() const {
    return sqlite3_get_autocommit(m_handle) == 0;
}

void Connection::setBusyTimeout(int milliseconds) {
    sqlite3_busy_timeout(m_handle, milliseconds);
}

bool Connection::disableTriggers() {
    return sqlite3_db_config(m_handle, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr) == SQLITE_OK;
}

std::int64_t Connection::lastInsertedRow() const {
    return sqlite3_last_insert_rowid(m_handle);
}

std::string Connection::lastError() const {
    return sqlite3_errmsg(m_handle);
}

int Connection::lastErrorCode() const {
    return sqlite3_errcode(m_handle) & 0xFF;
}

Statement::Statement(Statement&& other) noexcept : m_handle(std::exchange(other.m_handle, nullptr)) {}

Statement& Statement::operator=(Statement&& other) noexcept {
    const Statement old(std::exchange(m_handle, std::exchange(other.m_handle, nullptr)));
    return *this;
}

Statement::~Statement() {
    sqlite3_finalize(m_handle);
}

void Statement::bind(int parameter, std::int64_t value) {
    sqlite3_bind_int64(m_handle, parameter, value);
}

void Statement::bind(int parameter, double value) {
    sqlite3_bind_double(m_handle, parameter, value);
}

void Statement::bind(int parameter, std::string_view text) {
    // Null data would bind NULL instead of an empty text.
    sqlite3_bind_text64(m_handle, parameter, text.empty() ? "" : text.data(), text.size(), SQLITE_TRANSIENT,
                        SQLITE_UTF8);
}

void Statement::bind(int parameter, ByteView blob) {
    if (blob.empty())
        sqlite3_bind_zeroblob(m_handle, parameter, 0);
    else
        sqlite3_bind_blob64(m_handle, parameter, blob.data(), blob.size(), SQLITE_TRANSIENT);
}

void Statement::bindNull(int parameter) {
    sqlite3_bind_null(m_handle, parameter);
}

void Statement::bind(int parameter, std::optional<std::int32_t> value) {
    if (value)
        bind(parameter, std::int64_t{*value});
    else
        bindNull(parameter);
}

Step Statement::step() {
    switch (sqlite3_step(m_handle)) {
    case SQLITE_ROW:
        return Step::row;
    case SQLITE_DONE:
        return Step::done;
    default:
        return Step::failed;
    }
}

void Statement::reset() {
    sqlite3_reset(m_handle);
}

std::optional<std::int32_t> Statement::int32(int column) const {
    if (isNull(m_handle, column))
        return std::nullopt;
    return sqlite3_column_int(m_handle, column);
}

std::optional<std::int64_t> Statement::int64(int column) const {
    if (isNull(m_handle, column))
        return std::nullopt;
    return sqlite3_column_int64(m_handle, column);
}

std::optional<double> Statement::real(int column) const {
    if (isNull(m_handle, column))
        return std::nullopt;
    return sqlite3_column_double(m_handle, column);
}

std::optional<std::string> Statement::text(int column) const {
    if (isNull(m_handle, column))
        return std::nullopt;
    // The text first: asking for it may convert the value, and only then is the size the text's.
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(m_handle, column));
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(m_handle, column));
    return text ? std::optional(std::string(text, size)) : std::nullopt;
}

std::optional<Bytes> Statement::blob(int column) const {
    const auto view = blobView(column);
    return view ? std::optional(Bytes(view->begin(), view->end())) : std::nullopt;
}

std::optional<ByteView> Statement::blobView(int column) const {
    if (isNull(m_handle, column))
        return std::nullopt;
    const auto* data = static_cast<const std::uint8_t*>(sqlite3_column_blob(m_handle, column));
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(m_handle, column));
    return data ? ByteView(data, size) : ByteView();
}

Transaction::Transaction(Connection& connection, const char* begin)
    : m_connection(connection),
      m_began(connection.execute(begin) && connection.inTransaction()) {}

Transaction::~Transaction() {
    rollBack();
}

bool Transaction::isOpen() const {
    return m_began && m_connection.inTransaction();
}

bool Transaction::commit() {
    if (isOpen() && m_connection.execute("COMMIT"))
        return true;
    rollBack();
    return false;
}

void Transaction::rollBack() {
    if (isOpen())
        ignoreFailure(m_connection.execute("ROLLBACK"));
}

} // namespace tavrik::sqlite
