#pragma once

#include "model/RowID.h"
#include "model/SettingsRecords.h"
#include "platform/Path.h"
#include "platform/Result.h"

#include <optional>
#include <string>
#include <vector>

namespace tavrik {

struct ApplyServices;

/// A row of the Launchpad database: an application, or a group, which is a page or a folder.
struct LaunchpadRow {
    RowID number{};
    ItemPlacement placement;
    bool isApp = false;
    std::optional<std::string> title; ///< of an application or a group
    std::string bundleID;
    bool hasBookmark = false;
    MacPath path; ///< empty when its bookmark leads nowhere
    MacPath gone; ///< where it led then

    /// Where it leads, or led.
    const MacPath& lead() const { return path.empty() ? gone : path; }
};

/// All rows, in the order of their places. The error is a sentence. Background thread; reads in one
/// transaction; fails at once when another program holds the database exclusively. A missing database is not
/// created.
Result<std::vector<LaunchpadRow>> readLaunchpadRows(const ApplyServices& with);

} // namespace tavrik
