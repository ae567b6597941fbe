#include "practice/dock/LaunchpadIndex.h"

#include "platform/BookmarkPath.h"
#include "platform/Random.h"
#include "practice/dock/RegisteredBundle.h"

#include <sqlite3.h>

#include <algorithm>

namespace tavrik::practice {

namespace {

constexpr int kPage = 3;
constexpr int kApplication = 4;
constexpr int kPageFlags = 2;
constexpr std::int64_t kItemsOnPage = 35;

/// insert_item puts a row at the end of its parent, one past the largest ordering, the row's own counted in: so
/// with -1 the first application of a page gets 0, and with 0 the first page of the root gets 1.
constexpr std::int64_t kApplicationsFromZero = -1;
constexpr std::int64_t kPagesFromOne = 0;

/// A path as a bookmark records it: links above the last component followed.
MacPath asRecorded(const FileManager& files, const MacPath& path) {
    const auto folder = files.resolveLinks(path.parent());
    return folder ? *folder / path.name() : path;
}

} // namespace

LaunchpadIndex::LaunchpadIndex(sqlite::Connection& database, const FileManager& files)
    : m_database(database),
      m_files(files) {}

/// Looks without a lock first, since there is nothing to change as a rule, and again within the transaction.
template<typename Find, typename Change>
LaunchpadIndex::Outcome LaunchpadIndex::changeEach(Find find, Change change) {
    const auto candidates = find();
    if (!candidates)
        return failure();
    if (candidates->empty())
        return Outcome::done;

    sqlite::Transaction transaction(m_database, "BEGIN IMMEDIATE TRANSACTION");
    if (!transaction.isOpen())
        return failure();
    const auto found = find();
    if (!found || !switchTriggersOn() || !std::ranges::all_of(*found, change))
        return failure();
    return transaction.commit() ? Outcome::done : failure();
}

LaunchpadIndex::Outcome LaunchpadIndex::removeMissing(const std::vector<MacPath>& bundles) {
    return changeEach([&] { return missingRows(bundles); }, [this](std::int64_t row) { return remove(row); });
}

LaunchpadIndex::Outcome LaunchpadIndex::addNew(const std::vector<MacPath>& bundles) {
    return changeEach([&] { return newBundles(bundles); },
                      [this](const MacPath& bundle) { return add(bundle); });
}

std::optional<LaunchpadIndex::RowsByPath> LaunchpadIndex::rowsByPath() {
    RowsByPath rows;
    auto statement = m_database.prepare("SELECT item_id, bookmark FROM apps WHERE bookmark IS NOT NULL");
    if (!statement)
        return std::nullopt;
    sqlite::Step step = statement.step();
    for (; step == sqlite::Step::row; step = statement.step()) {
        const auto row = statement.int64(0);
        const auto bookmark = statement.blob(1);
        if (!row || !bookmark)
            continue;
        if (auto path = pathInBookmark(*bookmark))
            rows.emplace(std::move(*path), *row);
    }
    if (step == sqlite::Step::failed)
        return std::nullopt;
    return rows;
}

std::optional<std::vector<std::int64_t>> LaunchpadIndex::missingRows(const std::vector<MacPath>& bundles) {
    const auto known = rowsByPath();
    if (!known)
        return std::nullopt;
    std::vector<std::int64_t> rows;
    for (const MacPath& bundle : bundles) {
        if (m_files.exists(bundle))
            continue;
        const auto [first, last] = known->equal_range(asRecorded(m_files, bundle));
        std::for_each(first, last, [&rows](const auto& entry) { rows.push_back(entry.second); });
    }
    return rows;
}

std::optional<std::vector<MacPath>> LaunchpadIndex::newBundles(const std::vector<MacPath>& bundles) {
    const auto known = rowsByPath();
    if (!known)
        return std::nullopt;
    std::vector<MacPath> found;
    for (const MacPath& bundle : bundles)
        if (!known->contains(asRecorded(m_files, bundle)) && describeBundle(m_files, bundle))
            found.push_back(bundle);
    return found;
}

/// They are on unless somebody died in the middle of a change that is no transaction.
bool LaunchpadIndex::switchTriggersOn() {
    return m_database.execute("UPDATE dbinfo SET value='0' WHERE key='ignore_items_update_triggers'");
}

bool LaunchpadIndex::remove(std::int64_t row) {
    auto statement = m_database.prepare("DELETE FROM items WHERE rowid = ?");
    if (!statement)
        return false;
    statement.bind(1, row);
    return statement.step() == sqlite::Step::done;
}

bool LaunchpadIndex::add(const MacPath& bundle) {
    const auto record = describeBundle(m_files, bundle);
    if (!record)
        return true; // It went while we looked: there is nothing to add.
    const auto page = pageWithRoom();
    if (!page)
        return false;
    const auto row = addItem(kApplication, 0, *page, kApplicationsFromZero);
    if (!row)
        return false;
    auto statement = m_database.prepare(
        "INSERT INTO apps (item_id, title, bundleid, moddate, bookmark) VALUES (?, ?, ?, ?, ?)");
    if (!statement)
        return false;
    statement.bind(1, *row);
    statement.bind(2, record->title);
    statement.bind(3, record->identifier);
    statement.bind(4, record->modified.sinceReference);
    statement.bind(5, ByteView(record->bookmark));
    return statement.step() == sqlite::Step::done;
}

std::optional<std::int64_t> LaunchpadIndex::pageWithRoom() {
    const auto root =
        number("SELECT CAST(value AS INTEGER) FROM dbinfo WHERE key='launchpad_root' AND ? = 0", 0);
    if (!root)
        return std::nullopt;
    const auto last =
        number("SELECT rowid FROM items WHERE parent_id = ? AND type = 3 AND uuid != 'HOLDINGPAGE' "
               "ORDER BY ordering DESC, rowid DESC LIMIT 1",
               *root);
    if (last && number("SELECT COUNT(*) FROM items WHERE parent_id = ?", *last) < kItemsOnPage)
        return last;

    const auto page = addItem(kPage, kPageFlags, *root, kPagesFromOne);
    if (!page)
        return std::nullopt;
    auto statement =
        m_database.prepare("INSERT INTO groups (item_id, category_id, title) VALUES (?, NULL, NULL)");
    if (!statement)
        return std::nullopt;
    statement.bind(1, *page);
    return statement.step() == sqlite::Step::done ? page : std::nullopt;
}

std::optional<std::int64_t> LaunchpadIndex::addItem(int type, int flags, std::int64_t parent,
                                                    std::int64_t given) {
    auto statement =
        m_database.prepare("INSERT INTO items (uuid, flags, type, parent_id, ordering) VALUES (?, ?, ?, ?, ?)");
    if (!statement)
        return std::nullopt;
    SystemRandom random;
    statement.bind(1, makeUUID(random));
    statement.bind(2, std::int64_t{flags});
    statement.bind(3, std::int64_t{type});
    statement.bind(4, parent);
    statement.bind(5, given);
    if (statement.step() != sqlite::Step::done)
        return std::nullopt;
    return m_database.lastInsertedRow();
}

/// The first column of the first row.
std::optional<std::int64_t> LaunchpadIndex::number(const char* sql, std::int64_t parameter) {
    auto statement = m_database.prepare(sql);
    if (!statement)
        return std::nullopt;
    statement.bind(1, parameter);
    return statement.step() == sqlite::Step::row ? statement.int64(0) : std::nullopt;
}

LaunchpadIndex::Outcome LaunchpadIndex::failure() const {
    const int code = m_database.lastErrorCode();
    return code == SQLITE_BUSY || code == SQLITE_LOCKED ? Outcome::locked : Outcome::failed;
}

} // namespace tavrik::practice
