#include "wrappers/WrapperIndex.h"

#include "model/SettingsManager.h"
#include "platform/Clock.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/PathRules.h"
#include "system/DatabaseManager.h"

#include <algorithm>
#include <chrono>
#include <cstdint>

using namespace std::chrono_literals;

namespace tavrik {

namespace {

using Row = WrapperRows::Row;

constexpr auto kBetweenAttempts = 1000ms;

template<typename Predicate>
const Row* firstOf(const std::vector<Row>& rows, Predicate predicate) {
    const auto found = std::find_if(rows.begin(), rows.end(), predicate);
    return found == rows.end() ? nullptr : &*found;
}

const Row* numbered(const std::vector<Row>& rows, RowID rowID) {
    return firstOf(rows, [rowID](const Row& row) { return row.entry.rowID == rowID; });
}

/// What the search is after: a visible row; of hidden ones, the one that is known already.
const Row* indexedWrapper(const WrapperRows& rows, const std::optional<HiddenFlagApp>& hidden) {
    if (const Row* visible = rows.visibleWrapper())
        return visible;
    const Row* known = hidden && hidden->tavrikRowID ? rows.wrapper(*hidden->tavrikRowID) : nullptr;
    return known ? known : rows.anyWrapper();
}

} // namespace

const Row* WrapperRows::original(const MacPath& preferred) const {
    if (const Row* row = firstOf(originals, [&](const Row& each) { return each.path == preferred; }))
        return row;
    return originals.empty() ? nullptr : &originals.front();
}

const Row* WrapperRows::original(RowID rowID) const {
    return numbered(originals, rowID);
}

const Row* WrapperRows::wrapper(RowID rowID) const {
    return numbered(wrappers, rowID);
}

const Row* WrapperRows::visibleWrapper() const {
    return firstOf(wrappers, [](const Row& row) { return !row.entry.isHidden(); });
}

const Row* WrapperRows::anyWrapper() const {
    if (const Row* visible = visibleWrapper())
        return visible;
    return wrappers.empty() ? nullptr : &wrappers.front();
}

WrapperIndex::WrapperIndex(Mac& mac, SettingsManager& settings, DatabaseManager& database)
    : m_mac(mac),
      m_settings(settings),
      m_database(database) {}

WrapperRows WrapperIndex::rows(const std::string& bundleID) const {
    WrapperRows rows;
    for (DatabaseAppEntry& entry : m_database.appEntries(bundleID)) {
        const std::optional<MacPath> path = m_database.resolveBookmarkPath(entry.bookmarkData);
        if (!path || !m_mac.files.exists(*path))
            continue;
        (isWrapperPath(*path) ? rows.wrappers : rows.originals).push_back({std::move(entry), *path});
    }
    return rows;
}

std::optional<RowID> WrapperIndex::waitUntilIndexed(const std::string& bundleID, int maxAttempts) const {
    const std::optional<HiddenFlagApp> hidden = m_settings.getHiddenFlagApp(bundleID);
    if (hidden)
        log("🔍 Using special search for hidden flag app: " + bundleID);

    for (int attempt = 1; attempt <= maxAttempts; ++attempt) {
        const WrapperRows found = rows(bundleID);
        if (const Row* row = indexedWrapper(found, hidden)) {
            const std::string number = std::to_string(static_cast<std::int64_t>(row->entry.rowID));
            if (row->entry.isHidden())
                log("Found hidden tavrik app with RowID: " + number);
            else
                log("Found visible tavrik app with RowID: " + number);
            return row->entry.rowID;
        }
        log("Attempt " + std::to_string(attempt) + ": Tavrik app not yet indexed, waiting...");
        m_mac.clock.sleep(kBetweenAttempts);
    }
    log("ERROR: Tavrik app was not indexed after " + std::to_string(maxAttempts));
    return std::nullopt;
}

} // namespace tavrik
