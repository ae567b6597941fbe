#pragma once

#include "model/ApplicationInfo.h"
#include "platform/Path.h"

#include <optional>
#include <string>
#include <vector>

namespace tavrik {

struct IconRow;

/// One row of a list: the record, and what is shown, searched and sorted by.
struct ApplicationRow {
    ApplicationInfo app;
    std::string plainName;      ///< the name without styled letters, as a screen reader should read it
    std::string foldedName;     ///< as search compares it
    std::string foldedBundleID; ///< likewise
    std::string refusal;        ///< why it cannot be restyled, in a sentence; empty when it can
    bool isInDock = false;
    std::optional<bool> isSquircle; ///< its own icon; nothing while that is not known

    /// Its icons in display order: the visible permanent ones, then the pending ones. The theme icons follow
    /// them.
    std::vector<MacPath> displayPaths() const;

    /// The fields of the record that speak of its own icons.
    IconRow icons() const;

    /// A custom icon is chosen: applied, or staged to be.
    bool isThemed() const { return app.selectedIconIndex >= 0; }

    bool operator==(const ApplicationRow&) const = default;
};

} // namespace tavrik
