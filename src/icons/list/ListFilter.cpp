#include "icons/list/ListFilter.h"

#include "icons/list/ApplicationRow.h"

#include <utility>

namespace tavrik {

const char* labelOf(FilterOption option) {
    switch (option) {
    case FilterOption::allItems:
        return "All Items";
    case FilterOption::themedItems:
        return "Themed Items";
    case FilterOption::unthemedItems:
        return "Unthemed Items";
    }
    return "";
}

RowFilter::RowFilter(ListFilter filter, std::string foldedSearchText)
    : m_filter(std::move(filter)),
      m_foldedSearchText(std::move(foldedSearchText)) {}

bool RowFilter::shows(const ApplicationRow& row) const {
    if (m_filter.filterOption != FilterOption::allItems &&
        row.isThemed() != (m_filter.filterOption == FilterOption::themedItems))
        return false;
    if (m_filter.showOnlyDockItems && !row.isInDock)
        return false;
    if (m_filter.showOnlyNonSquircle && row.isSquircle.value_or(true))
        return false;
    if (!m_filter.showUnsupportedApps && !row.refusal.empty())
        return false;
    return row.foldedName.find(m_foldedSearchText) != std::string::npos ||
           row.foldedBundleID.find(m_foldedSearchText) != std::string::npos;
}

} // namespace tavrik
