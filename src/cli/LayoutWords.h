#pragma once

#include "backups/BackupSummary.h"

#include <string>
#include <vector>

namespace tavrik {

/// A line for each page, folder, and the Dock.
std::vector<std::string> inWords(const LayoutSummary& layout);

/// What became of a layout since, a sentence for each kind of change and each move. Empty when nothing did.
std::vector<std::string> inWords(const LayoutDifferences& since);

} // namespace tavrik
