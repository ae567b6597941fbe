#pragma once

namespace tavrik {

struct ApplyServices;

/// So many applications on other pages, or more, are no ordinary rearranging.
inline constexpr int kLayoutIssueThreshold = 31;

/// How many applications stand on another page or in another folder than in the newest backup, when that is
/// more than half of those that are in both; otherwise, and when there is nothing to compare with, 0. Writes
/// the backup's database to "backup_check.db" in the temporary folder, readable by its owner alone, and removes
/// it on every path out; a kill leaves it for the next start. Background thread; blocks on the disk.
int checkLayout(const ApplyServices& with);

} // namespace tavrik
