#pragma once

#include "changes/StagedChanges.h"
#include "platform/Date.h"
#include "platform/PropertyList.h"

#include <string>
#include <vector>

namespace tavrik {

class FontReplacer;
class IconStore;

/// Staged changes as the property list of the recovery file. Pure; any thread.

/// What a recovery file may hold, far above what a person can stage.
inline constexpr plist::Limits kRecoveryFileLimits{.bytes = 16u << 20, .depth = 16, .values = 200'000};

/// A key is there only when its value is not empty; "timestamp" always is.
plist::Dictionary encodeStagedChanges(const StagedChanges& staged, Date timestamp);

/// What is read from a file that anybody may have written. An entry whose type is wrong, a name that is no safe
/// file name, and an icon path outside the application's own two folders are left out, each with a line that
/// says so in `remarks`. An index that is no number of a place counts as none. Whether the files are there is
/// not looked at.
StagedChanges decodeStagedChanges(const plist::Dictionary& root, const IconStore& store,
                                  const FontReplacer& fonts, std::vector<std::string>& remarks);

} // namespace tavrik
