#pragma once

#include "changes/StagedChanges.h"
#include "cli/Command.h"
#include "platform/Date.h"
#include "platform/Result.h"

#include <optional>

namespace tavrik {

class Companion;

/// What the recovery file says.
struct StagedOnDisk {
    StagedChanges changes;
    std::optional<Date> timestamp; ///< when it was written
    bool isThere = false;          ///< a file without any changes is possible
};

/// For commands that only look: reads the file and changes nothing. The error is a sentence.
Result<StagedOnDisk> lookAtStaged(Companion& companion);

/// For commands that stage: takes up what earlier calls have staged. Anything but `done` is the code to end
/// with, its sentence printed.
ExitCode takeUpStaged(Companion& companion);

/// For their end: whether the next call will find what is staged. The code to end with, as above.
ExitCode confirmStaged(Companion& companion);

} // namespace tavrik
