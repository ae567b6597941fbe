#pragma once

#include "changes/IconRow.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tavrik {

class FileManager;

/// A row's icons as they can be shown, and what was wrong with them, a log line each.
struct CheckedIcons {
    IconRow row;
    std::vector<std::string> warnings;
};

/// Drops what is not on disk or not where it belongs, hidden numbers of no permanent icon, and a selection
/// outside the icons of the row and the `themeIcons` offered behind them. The selection stays with its icon
/// when one before it is dropped. `name` is the application's. Looks at each file; any thread.
CheckedIcons checkedIcons(const FileManager& files, IconRow row, std::size_t themeIcons,
                          const std::string& name);

} // namespace tavrik
