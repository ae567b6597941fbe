#pragma once

#include <string>

namespace tavrik {

struct ApplicationRow;

enum class FilterOption { allItems, themedItems, unthemedItems };

/// As the filter popover and the log lines call it: "All Items".
const char* labelOf(FilterOption option);

/// Which applications a list shows.
struct ListFilter {
    FilterOption filterOption = FilterOption::allItems;
    bool showOnlyDockItems = false;
    bool showOnlyNonSquircle = false;
    bool showUnsupportedApps = false;
    std::string searchText; ///< as it was typed

    bool operator==(const ListFilter&) const = default;
};

/// A filter made ready for many rows: the text that is searched for is folded once.
class RowFilter {
public:
    /// `foldedSearchText` is what `FontReplacer::folded` makes of the text, without blanks at its ends.
    RowFilter(ListFilter filter, std::string foldedSearchText);

    /// Whether the row is shown. A shape that is not known yet passes for the standard one. Pure.
    bool shows(const ApplicationRow& row) const;

private:
    ListFilter m_filter;
    std::string m_foldedSearchText;
};

} // namespace tavrik
