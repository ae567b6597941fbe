#pragma once

#include "platform/Path.h"

#include <set>
#include <vector>

namespace tavrik {

struct ApplicationInfo;

/// The icons of one application as its row shows them, staged changes included.
struct IconRow {
    std::vector<MacPath> permanentIconPaths{};
    std::vector<MacPath> pendingAdditionPaths{};
    std::set<int> hiddenPermanentIndices{}; ///< numbers of permanent icons
    int selectedIconIndex = -1;             ///< place in `displayPaths`; -1 = the application's own icon

    /// The visible permanent icons, then the pending ones.
    std::vector<MacPath> displayPaths() const;

    bool operator==(const IconRow&) const = default;
};

/// Fills the fields of a catalogue record that speak of its icons.
void setIconRow(ApplicationInfo& app, const IconRow& row);

} // namespace tavrik
