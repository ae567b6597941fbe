#include "changes/StagedChanges.h"

#include <algorithm>

namespace tavrik {

std::optional<int> selectionIn(const std::vector<MacPath>& row, const IconChange& change) {
    if (!change.selectedIndex || *change.selectedIndex < 0)
        return std::nullopt;
    const auto index = static_cast<std::size_t>(*change.selectedIndex);
    if (index >= change.iconPaths.size())
        return static_cast<int>(index - change.iconPaths.size() + row.size());
    const auto found = std::ranges::find(row, change.iconPaths[index]);
    if (found == row.end())
        return std::nullopt;
    return static_cast<int>(found - row.begin());
}

bool StagedChanges::empty() const {
    return *this == StagedChanges();
}

} // namespace tavrik
