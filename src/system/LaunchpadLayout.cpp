#include "system/LaunchpadLayout.h"

#include "platform/Sqlite.h"

#include <map>
#include <utility>

namespace tavrik {

namespace {

constexpr int kFolder = 2;
constexpr int kPage = 3;
constexpr int kApplication = 4;
constexpr const char* kHoldingPage = "HOLDINGPAGE";
constexpr std::int64_t kUsualRoot = 1;

/// Ties within a parent, which are legal in the file, stand in the order of their rows.
constexpr const char* kItems = "SELECT i.parent_id, i.rowid, i.type, i.uuid, i.flags, a.item_id, a.title, "
                               "a.bundleid, g.title FROM items i "
                               "LEFT JOIN apps a ON a.item_id = i.rowid "
                               "LEFT JOIN groups g ON g.item_id = i.rowid "
                               "ORDER BY i.ordering, i.rowid";

struct Row {
    std::int64_t number = 0;
    int type = 0;
    bool isHoldingPage = false;
    std::string groupTitle;
    std::optional<LaunchpadLayout::Application> application; ///< when the row has the details of one
};

using Children = std::map<std::int64_t, std::vector<Row>>;

std::optional<Children> readRows(sqlite::Connection& database) {
    auto items = database.prepare(kItems);
    if (!items)
        return std::nullopt;
    Children children;
    sqlite::Step step = items.step();
    for (; step == sqlite::Step::row; step = items.step()) {
        Row row{.number = items.int64(1).value_or(0),
                .type = items.int32(2).value_or(0),
                .isHoldingPage = items.text(3) == kHoldingPage,
                .groupTitle = items.text(8).value_or(""),
                .application = {}};
        if (items.int64(5)) {
            row.application = {.rowID = RowID{row.number},
                               .title = items.text(6).value_or(""),
                               .bundleID = items.text(7).value_or(""),
                               .isHidden = (items.int32(4).value_or(0) & kHiddenFlag) != 0};
        }
        children[items.int64(0).value_or(0)].push_back(std::move(row));
    }
    return step == sqlite::Step::done ? std::optional(std::move(children)) : std::nullopt;
}

/// Nothing when it cannot be asked for.
std::optional<std::int64_t> rootOf(sqlite::Connection& database) {
    auto info = database.prepare("SELECT value FROM dbinfo WHERE key = 'launchpad_root'");
    if (!info)
        return std::nullopt;
    switch (info.step()) {
    case sqlite::Step::row: {
        const std::int64_t root = info.int64(0).value_or(0);
        return root > 0 ? root : kUsualRoot;
    }
    case sqlite::Step::done:
        return kUsualRoot;
    case sqlite::Step::failed:
        break;
    }
    return std::nullopt;
}

/// Walks the rows: a root's pages, a folder's pages, and what stands on them.
class Walk {
public:
    explicit Walk(const Children& children) : m_children(children) {}

    LaunchpadLayout layoutOf(std::int64_t root) const {
        return {pagesOf<LaunchpadLayout::Item>(root, [this](const Row& row, auto& page) {
            if (row.type == kFolder)
                page.push_back(folderOf(row));
            else
                addApplication(row, page);
        })};
    }

private:
    template<typename Item, typename Add>
    std::vector<std::vector<Item>> pagesOf(std::int64_t parent, Add add) const {
        std::vector<std::vector<Item>> pages;
        for (const Row& row : childrenOf(parent)) {
            if (row.type != kPage || row.isHoldingPage)
                continue;
            std::vector<Item> page;
            for (const Row& child : childrenOf(row.number))
                add(child, page);
            if (!page.empty())
                pages.push_back(std::move(page));
        }
        return pages;
    }

    LaunchpadLayout::Folder folderOf(const Row& row) const {
        return {RowID{row.number}, row.groupTitle,
                pagesOf<LaunchpadLayout::Application>(
                    row.number, [](const Row& child, auto& page) { addApplication(child, page); })};
    }

    template<typename Item>
    static void addApplication(const Row& row, std::vector<Item>& page) {
        if (row.type == kApplication && row.application)
            page.push_back(*row.application);
    }

    const std::vector<Row>& childrenOf(std::int64_t parent) const {
        const auto found = m_children.find(parent);
        return found == m_children.end() ? m_none : found->second;
    }

    const Children& m_children;
    const std::vector<Row> m_none;
};

} // namespace

std::optional<LaunchpadLayout> readLaunchpadLayout(sqlite::Connection& database) {
    // Both questions are about one state of a database that the Dock may be writing.
    const sqlite::Transaction together(database, "BEGIN");
    const auto root = rootOf(database);
    const auto children = root ? readRows(database) : std::nullopt;
    return children ? std::optional(Walk(*children).layoutOf(*root)) : std::nullopt;
}

} // namespace tavrik
