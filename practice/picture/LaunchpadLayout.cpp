#include "practice/picture/LaunchpadLayout.h"

#include "platform/Sqlite.h"
#include "platform/practice/PracticeBookmarks.h"
#include "practice/picture/ReadOnlyDatabase.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>

namespace tavrik::practice {

namespace {

constexpr int kFolder = 2;
constexpr int kPage = 3;
constexpr int kApp = 4;
constexpr int kHiddenFlag = 128;
constexpr std::int64_t kUsualRoot = 1;
constexpr const char* kHoldingPage = "HOLDINGPAGE";

struct Row {
    std::int64_t number = 0;
    int type = 0;
    int flags = 0;
    std::string uuid;
};

/// Bundle identifiers are compared without surrounding blanks and without case.
std::string comparable(const std::string& bundleID) {
    constexpr const char* kBlanks = " \t\r\n";
    const auto first = bundleID.find_first_not_of(kBlanks);
    if (first == std::string::npos)
        return {};
    std::string text = bundleID.substr(first, bundleID.find_last_not_of(kBlanks) - first + 1);
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return text;
}

class Reader {
public:
    Reader(const FileManager& files, sqlite::Connection& connection)
        : m_connection(connection),
          m_bookmarks(files) {}

    Result<LaunchpadLayout> read(std::size_t mostPages) {
        if (!readRows())
            return Error{"The Launchpad database cannot be read: " + m_connection.lastError() + "."};
        m_appDetails = m_connection.prepare("SELECT title, bundleid, bookmark FROM apps WHERE item_id = ?1");
        m_groupTitle = m_connection.prepare("SELECT title FROM groups WHERE item_id = ?1");
        LaunchpadLayout layout;
        for (const Row& page : childrenOf(root())) {
            if (page.type != kPage || page.uuid == kHoldingPage)
                continue;
            if (layout.pages.size() < mostPages)
                layout.pages.push_back(readPage(page));
            else
                ++layout.pagesLeftOut;
        }
        return layout;
    }

private:
    bool readRows() {
        auto rows = m_connection.prepare("SELECT rowid, type, flags, uuid, parent_id FROM items "
                                         "ORDER BY ordering, rowid");
        if (!rows)
            return false;
        sqlite::Step step = rows.step();
        for (; step == sqlite::Step::row; step = rows.step()) {
            Row row{rows.int64(0).value_or(0), rows.int32(1).value_or(0), rows.int32(2).value_or(0),
                    rows.text(3).value_or("")};
            m_children[rows.int64(4).value_or(0)].push_back(std::move(row));
        }
        return step == sqlite::Step::done;
    }

    std::int64_t root() {
        auto info = m_connection.prepare("SELECT value FROM dbinfo WHERE key = 'launchpad_root'");
        if (!info || info.step() != sqlite::Step::row)
            return kUsualRoot;
        const std::int64_t root = info.int64(0).value_or(0);
        return root > 0 ? root : kUsualRoot;
    }

    const std::vector<Row>& childrenOf(std::int64_t parent) const {
        static const std::vector<Row> none;
        const auto found = m_children.find(parent);
        return found == m_children.end() ? none : found->second;
    }

    std::vector<LaunchpadItem> readPage(const Row& page) {
        std::vector<LaunchpadItem> items;
        for (const Row& row : childrenOf(page.number)) {
            if (row.type == kFolder)
                items.emplace_back(readFolder(row));
            else if (auto app = row.type == kApp ? readApp(row) : std::nullopt)
                items.emplace_back(std::move(*app));
        }
        return items;
    }

    LaunchpadFolder readFolder(const Row& row) {
        LaunchpadFolder folder;
        if (m_groupTitle) {
            m_groupTitle.reset();
            m_groupTitle.bind(1, row.number);
            if (m_groupTitle.step() == sqlite::Step::row)
                folder.title = m_groupTitle.text(0).value_or("");
        }
        for (const Row& page : childrenOf(row.number)) {
            if (page.type != kPage)
                continue;
            std::vector<LaunchpadApp>& apps = folder.pages.emplace_back();
            for (const Row& entry : childrenOf(page.number)) {
                if (auto app = entry.type == kApp ? readApp(entry) : std::nullopt)
                    apps.push_back(std::move(*app));
            }
        }
        return folder;
    }

    /// Nothing when the row is not shown.
    std::optional<LaunchpadApp> readApp(const Row& row) {
        if (!m_appDetails)
            return std::nullopt;
        m_appDetails.reset();
        m_appDetails.bind(1, row.number);
        if (m_appDetails.step() != sqlite::Step::row)
            return std::nullopt;
        LaunchpadApp app{row.number, m_appDetails.text(0).value_or(""), m_appDetails.text(1).value_or(""), {}};
        const std::string identifier = comparable(app.bundleID);
        if ((row.flags & kHiddenFlag) != 0 && !identifier.starts_with("com.apple."))
            return std::nullopt;
        if (!identifier.empty() && !m_seen.insert(identifier).second)
            return std::nullopt;
        if (const auto bookmark = m_appDetails.blob(2)) {
            if (auto path = m_bookmarks.resolve(*bookmark))
                app.path = std::move(*path);
        }
        return app;
    }

    sqlite::Connection& m_connection;
    PracticeBookmarks m_bookmarks;
    std::map<std::int64_t, std::vector<Row>> m_children;
    std::set<std::string> m_seen;
    sqlite::Statement m_appDetails;
    sqlite::Statement m_groupTitle;
};

} // namespace

Result<LaunchpadLayout> readLaunchpadLayout(const FileManager& files, const HostPath& database,
                                            std::size_t mostPages) {
    auto opened = ReadOnlyDatabase::open(database);
    if (!opened)
        return opened.error();
    return Reader(files, opened->connection()).read(mostPages);
}

} // namespace tavrik::practice
