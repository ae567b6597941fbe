#include "changes/apply/LaunchpadReading.h"

#include "changes/apply/ApplyServices.h"
#include "changes/apply/ApplyStores.h"
#include "changes/apply/LaunchpadRows.h"
#include "model/SettingsManager.h"
#include "platform/PathRules.h"
#include "system/RowsPlacement.h"

#include <map>
#include <set>
#include <vector>

namespace tavrik {

namespace {

using Row = LaunchpadRow;

/// The rows of applications whose place their wrapper holds, with the wrapper's.
class Exchanges {
public:
    Exchanges(SettingsManager& settings, const std::vector<Row>& rows) {
        for (const Row& row : rows)
            m_rows.emplace(row.number, &row);
        const auto records = settings.getAllSwapRecords();
        for (const auto& [bundleID, mapping] : settings.getAllMappings()) {
            if (!records.contains(bundleID))
                add(bundleID, mapping.originalRowID, mapping.tavrikRowID);
        }
        for (const auto& [bundleID, record] : records) {
            const Row* original = rowOf(bundleID, record.originalRowID);
            const Row* wrapper = rowOf(bundleID, record.tavrikRowID);
            if (original && wrapper &&
                stateOf({original->placement, wrapper->placement}, record) == RowsState::exchanged)
                add(bundleID, record.originalRowID, record.tavrikRowID);
        }
    }

    /// What is shown in the place of this original.
    const Row& shownFor(const Row& original) const {
        const auto wrapper = m_wrapperOf.find(original.number);
        return wrapper == m_wrapperOf.end() ? original : *wrapper->second;
    }

    bool isExchangedWrapper(const Row& row) const { return m_wrappers.contains(row.number); }

private:
    /// A rebuilt database may have given the number to another item.
    const Row* rowOf(const std::string& bundleID, RowID number) const {
        const auto row = m_rows.find(number);
        return row != m_rows.end() && row->second->isApp && row->second->bundleID == bundleID ? row->second
                                                                                              : nullptr;
    }

    void add(const std::string& bundleID, RowID original, RowID wrapper) {
        const Row* row = rowOf(bundleID, wrapper);
        if (!rowOf(bundleID, original) || !row || original == wrapper)
            return;
        m_wrapperOf.emplace(original, row);
        m_wrappers.insert(wrapper);
    }

    std::map<RowID, const Row*> m_rows;
    std::map<RowID, const Row*> m_wrapperOf;
    std::set<RowID> m_wrappers;
};

} // namespace

Status readLaunchpad(const ApplyServices& with, ApplyStores& stores) {
    const auto rows = readLaunchpadRows(with);
    if (!rows)
        return rows.error();
    const Exchanges exchanges(with.settings, *rows);

    std::set<std::string> found; // identifiers of what is really there
    for (const Row& row : *rows) {
        if (!row.path.empty() && !isWrapperPath(row.path))
            found.insert(row.bundleID);
    }

    std::map<RowID, RowID> shownRowOf; // an original's
    for (const Row& row : *rows) {
        if (!row.isApp || exchanges.isExchangedWrapper(row))
            continue;
        // The Dock has not dropped the row of a removed wrapper yet.
        if (row.path.empty() && (isWrapperPath(row.gone) || found.contains(row.bundleID)))
            continue;
        if (isWrapperPath(row.path)) {
            stores.strayWrapperRows.insert(row.bundleID);
            continue;
        }
        const Row& visible = exchanges.shownFor(row);
        stores.apps.emplace(row.number, ApplyStores::ShownApp{.bundleID = row.bundleID,
                                                              .title = visible.title,
                                                              .originalTitle = row.title,
                                                              .original = row.path,
                                                              .shown = visible.path,
                                                              .gone = visible.gone,
                                                              .isRetitled = visible.hasBookmark,
                                                              .page = visible.placement.parentID});
        shownRowOf.emplace(visible.number, row.number);
    }

    // Places count what a person sees, so that the other row of a pair moves nobody.
    std::map<RowID, int> next;
    for (const Row& row : *rows) {
        const auto original = shownRowOf.find(row.number);
        const bool isFolder = !row.isApp && row.title && !row.title->empty();
        if (original != shownRowOf.end())
            stores.apps.at(original->second).place = next[row.placement.parentID]++;
        else if (isFolder)
            ++next[row.placement.parentID];
        if (isFolder)
            stores.folders.emplace(row.number, *row.title);
    }
    return Done{};
}

} // namespace tavrik
