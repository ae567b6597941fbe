#include "icons/list/CheckedIcons.h"

#include "changes/StagedChanges.h"
#include "icons/IconFiles.h"
#include "platform/FileManager.h"
#include "platform/PathRules.h"

#include <set>
#include <utility>

namespace tavrik {

namespace {

std::set<int> numbersOf(const std::vector<MacPath>& icons) {
    std::set<int> numbers;
    for (const MacPath& icon : icons) {
        if (const auto number = iconIndex(icon.name()))
            numbers.insert(*number);
    }
    return numbers;
}

/// Where the selection among the icons of `before`, or behind them, stands now; -1 where it does not.
int selectionNow(const IconRow& row, std::vector<MacPath> before, int selected, std::size_t themeIcons) {
    const auto display = row.displayPaths();
    const int place = selectionIn(display, {std::move(before), selected}).value_or(-1);
    return place < static_cast<int>(display.size() + themeIcons) ? place : -1;
}

} // namespace

CheckedIcons checkedIcons(const FileManager& files, IconRow row, std::size_t themeIcons,
                          const std::string& name) {
    std::vector<std::string> warnings;
    auto before = row.displayPaths();
    const auto isMissing = [&](const MacPath& path, const char* warning) {
        const bool missing = !files.exists(path);
        if (missing)
            warnings.push_back(warning + path.string());
        return missing;
    };
    std::erase_if(row.permanentIconPaths, [&](const MacPath& path) {
        return isMissing(path, "⚠️ Warning: Permanent icon missing at ");
    });
    std::erase_if(row.pendingAdditionPaths, [&](const MacPath& path) {
        if (isMissing(path, "⚠️ Warning: Pending icon missing at "))
            return true;
        const bool isOutside = !isPendingIconPath(path);
        if (isOutside)
            warnings.push_back("⚠️ Warning: Path marked as pending but not in pending directory: " +
                               path.string());
        return isOutside;
    });
    std::erase_if(row.hiddenPermanentIndices, [&, numbers = numbersOf(row.permanentIconPaths)](int index) {
        const bool isInvalid = !numbers.contains(index);
        if (isInvalid)
            warnings.push_back("⚠️ Warning: Invalid hidden index " + std::to_string(index));
        return isInvalid;
    });
    const int selected = row.selectedIconIndex;
    row.selectedIconIndex = selectionNow(row, std::move(before), selected, themeIcons);
    if (selected != -1 && row.selectedIconIndex == -1)
        warnings.push_back("⚠️ Warning: Selected index " + std::to_string(selected) + " out of bounds for " +
                           name + ", resetting to -1");
    return {std::move(row), std::move(warnings)};
}

} // namespace tavrik
