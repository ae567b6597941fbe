#include "practice/furnish/LaunchpadDatabaseBuilder.h"

#include "practice/furnish/LaunchpadSchema.h"

namespace tavrik::practice {

namespace {

constexpr int kRootType = 1;
constexpr int kFolderType = 2;
constexpr int kPageType = 3;
constexpr int kAppType = 4;

constexpr std::int32_t kPageFlags = 2;

void bindOptional(sqlite::Statement& statement, int parameter, const std::optional<std::string>& text) {
    if (text)
        statement.bind(parameter, std::string_view(*text));
    else
        statement.bindNull(parameter);
}

void bindOptional(sqlite::Statement& statement, int parameter, const std::optional<std::int64_t>& number) {
    if (number)
        statement.bind(parameter, *number);
    else
        statement.bindNull(parameter);
}

/// The lowest digits of a number.
std::string hex(std::uint64_t number, int digits) {
    std::string text;
    for (int digit = digits - 1; digit >= 0; --digit)
        text += "0123456789ABCDEF"[(number >> (4 * digit)) & 0xF];
    return text;
}

/// Spreads consecutive numbers over 64 bits, so that the identifiers made of them look like any others.
std::uint64_t scattered(std::uint64_t number) {
    number = (number + 0x9E3779B97F4A7C15u) * 0xBF58476D1CE4E5B9u;
    number = (number ^ (number >> 29)) * 0x94D049BB133111EBu;
    return number ^ (number >> 32);
}

} // namespace

LaunchpadDatabaseBuilder::LaunchpadDatabaseBuilder(const HostPath& file) {
    m_connection = sqlite::Connection::open(file, sqlite::OpenMode::readWriteCreate);
    if (!m_connection) {
        m_status = Error{"Cannot make the Launchpad database " + file.string()};
        return;
    }
    // The journal mode cannot change inside a transaction. Nothing needs to survive a power cut before the end.
    execute("PRAGMA synchronous=OFF; PRAGMA journal_mode=WAL; BEGIN EXCLUSIVE TRANSACTION;");
    execute(kLaunchpadSchema);
    // While the switch stands at 1 the triggers leave the given places alone.
    execute("INSERT INTO dbinfo VALUES ('launchpad_root', '1');"
            "INSERT INTO dbinfo VALUES ('launchpad_version_root', '5');"
            "INSERT INTO dbinfo VALUES ('version', '13');"
            "INSERT INTO dbinfo VALUES ('ignore_items_update_triggers', '1');");
    m_insertItem = m_connection->prepare("INSERT INTO items (rowid, uuid, flags, type, parent_id, ordering) "
                                         "VALUES (?, ?, ?, ?, ?, ?)");
    m_insertGroup =
        m_connection->prepare("INSERT INTO groups (item_id, category_id, title) VALUES (?, NULL, ?)");
    m_insertApp =
        m_connection->prepare("INSERT INTO apps (item_id, title, bundleid, storeid, category_id, moddate, "
                              "bookmark) VALUES (?, ?, ?, ?, ?, ?, ?)");
    if (!m_insertItem || !m_insertGroup || !m_insertApp)
        fail();

    constexpr LaunchpadRow kNothing{0};
    constexpr LaunchpadRow kUnshownRoot{5};
    const auto addFixed = [this](LaunchpadRow row, const char* name, std::optional<std::int32_t> flags,
                                 int type, LaunchpadRow parent) {
        addItem(static_cast<std::int64_t>(row), name, flags, type, parent);
        addGroup(row, std::nullopt);
    };
    addFixed(kLaunchpadRoot, "ROOTPAGE", std::nullopt, kRootType, kNothing);
    addFixed(kHoldingPage, "HOLDINGPAGE", kPageFlags, kPageType, kLaunchpadRoot);
    addFixed(kUnshownRoot, "ROOTPAGE_VERS", std::nullopt, kRootType, kNothing);
    addFixed(kUnshownPage, "HOLDINGPAGE_VERS", kPageFlags, kPageType, kUnshownRoot);
}

LaunchpadRow LaunchpadDatabaseBuilder::addPage() {
    return addPageOf(kLaunchpadRoot);
}

LaunchpadRow LaunchpadDatabaseBuilder::addFolder(LaunchpadRow page, const std::string& title,
                                                 std::int32_t flags) {
    const LaunchpadRow row = addItem(std::nullopt, nextUUID(), flags, kFolderType, page);
    addGroup(row, title);
    return addPageOf(row);
}

LaunchpadRow LaunchpadDatabaseBuilder::addApp(LaunchpadRow page, const LaunchpadApp& app) {
    const LaunchpadRow row = addItem(std::nullopt, nextUUID(), app.flags, kAppType, page);
    const std::optional<std::int64_t> category = categoryRow(app.category);
    if (!m_status)
        return row;
    m_insertApp.bind(1, static_cast<std::int64_t>(row));
    m_insertApp.bind(2, app.title);
    m_insertApp.bind(3, app.bundleID);
    bindOptional(m_insertApp, 4, app.storeID);
    bindOptional(m_insertApp, 5, category);
    m_insertApp.bind(6, app.modified.sinceReference);
    if (app.bookmark)
        m_insertApp.bind(7, ByteView(*app.bookmark));
    else
        m_insertApp.bindNull(7);
    run(m_insertApp);
    return row;
}

void LaunchpadDatabaseBuilder::addSource(const LaunchpadSource& source) {
    if (!m_status)
        return;
    sqlite::Statement insert = m_connection->prepare("INSERT INTO app_sources (uuid, flags, bookmark, "
                                                     "last_fsevent_id, fsevent_uuid) VALUES (?, 0, ?, ?, ?)");
    if (!insert)
        return fail();
    insert.bind(1, nextUUID());
    insert.bind(2, ByteView(source.bookmark));
    insert.bind(3, source.lastEvent);
    insert.bind(4, nextUUID());
    run(insert);
}

Status LaunchpadDatabaseBuilder::finish() {
    m_insertItem = {};
    m_insertGroup = {};
    m_insertApp = {};
    execute("UPDATE dbinfo SET value='0' WHERE key='ignore_items_update_triggers'; COMMIT;");
    m_connection.reset();
    return m_status;
}

LaunchpadRow LaunchpadDatabaseBuilder::addItem(std::optional<std::int64_t> row, const std::string& uuid,
                                               std::optional<std::int32_t> flags, int type,
                                               LaunchpadRow parent) {
    if (!m_status)
        return LaunchpadRow{};
    bindOptional(m_insertItem, 1, row);
    m_insertItem.bind(2, uuid);
    m_insertItem.bind(3, flags);
    m_insertItem.bind(4, std::int64_t{type});
    m_insertItem.bind(5, static_cast<std::int64_t>(parent));
    m_insertItem.bind(6, std::int64_t{m_nextOrdering[parent]++});
    run(m_insertItem);
    return LaunchpadRow{m_connection->lastInsertedRow()};
}

LaunchpadRow LaunchpadDatabaseBuilder::addPageOf(LaunchpadRow parent) {
    const LaunchpadRow row = addItem(std::nullopt, nextUUID(), kPageFlags, kPageType, parent);
    addGroup(row, std::nullopt);
    return row;
}

void LaunchpadDatabaseBuilder::addGroup(LaunchpadRow row, const std::optional<std::string>& title) {
    if (!m_status)
        return;
    m_insertGroup.bind(1, static_cast<std::int64_t>(row));
    bindOptional(m_insertGroup, 2, title);
    run(m_insertGroup);
}

std::optional<std::int64_t> LaunchpadDatabaseBuilder::categoryRow(const std::string& category) {
    if (category.empty() || !m_status)
        return std::nullopt;
    if (const auto known = m_categories.find(category); known != m_categories.end())
        return known->second;
    sqlite::Statement insert = m_connection->prepare("INSERT INTO categories (uti) VALUES (?)");
    if (!insert) {
        fail();
        return std::nullopt;
    }
    insert.bind(1, category);
    run(insert);
    return m_categories[category] = m_connection->lastInsertedRow();
}

std::string LaunchpadDatabaseBuilder::nextUUID() {
    const std::uint64_t high = scattered(m_uuids++);
    const std::uint64_t low = scattered(~high);
    constexpr std::uint64_t kVariant = 0x8000;
    return hex(high >> 32, 8) + "-" + hex(high >> 16, 4) + "-4" + hex(high, 3) + "-" +
           hex(((low >> 48) & 0x3FFF) | kVariant, 4) + "-" + hex(low, 12);
}

void LaunchpadDatabaseBuilder::execute(const char* sql) {
    if (m_status && !m_connection->execute(sql))
        fail();
}

void LaunchpadDatabaseBuilder::run(sqlite::Statement& statement) {
    if (!m_status)
        return;
    if (statement.step() == sqlite::Step::failed)
        fail();
    statement.reset();
}

void LaunchpadDatabaseBuilder::fail() {
    if (m_status)
        m_status = Error{"Cannot fill the Launchpad database: " + m_connection->lastError()};
}

} // namespace tavrik::practice
