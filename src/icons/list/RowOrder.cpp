#include "icons/list/RowOrder.h"

#include "system/TitleOrder.h"

#include <algorithm>
#include <utility>

namespace tavrik {

namespace {

struct SortKey {
    QCollatorSortKey name;
    ApplicationRow* row;
};

} // namespace

void sortRows(std::vector<ApplicationRow>& rows, SortOrder order) {
    const QCollator collator = titleCollator();
    std::vector<SortKey> keys;
    keys.reserve(rows.size());
    for (ApplicationRow& row : rows)
        keys.push_back({collator.sortKey(QString::fromStdString(row.plainName)), &row});
    std::ranges::sort(keys, [order](const SortKey& left, const SortKey& right) {
        const int compared = left.name.compare(right.name);
        if (compared != 0)
            return (compared < 0) == (order == SortOrder::ascending);
        return left.row->app.bundleID < right.row->app.bundleID;
    });
    std::vector<ApplicationRow> sorted;
    sorted.reserve(rows.size());
    for (const SortKey& key : keys)
        sorted.push_back(std::move(*key.row));
    rows = std::move(sorted);
}

} // namespace tavrik
