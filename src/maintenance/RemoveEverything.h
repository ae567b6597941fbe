#pragma once

#include "changes/apply/ApplyServices.h"
#include "platform/Result.h"

#include <string>
#include <vector>

namespace tavrik {

/// Takes out of the Mac all that the program has put into it. Background thread; seconds for each wrapper. The
/// program holds the support folder's lock.
class RemoveEverything {
public:
    explicit RemoveEverything(const ApplyServices& with) : m_with(with) {}

    /// Where something of the program's is left in Launchpad, the Dock, the wrapper folder, or what the
    /// settings know of them, a sentence each. Changes nothing. The error says why that cannot be told.
    Result<std::vector<std::string>> traces() const;

    struct Outcome {
        std::string backup;              ///< the snapshot that was taken before, by name; empty without one
        std::vector<std::string> done;   ///< sentences
        std::vector<std::string> traces; ///< what is left after all, a sentence each
    };

    /// Originals back in their places, plain names, tiles, wrappers gone, and the folder of the wrappers;
    /// icons, themes, backups and staged changes stay. Takes a snapshot first and does nothing without one.
    /// Goes to its end whatever fails; a repeat takes up what is left, also after a kill. An empty outcome, and
    /// no snapshot, when there is no trace. After an error nothing was changed.
    Result<Outcome> removeFromSystem();

    /// Afterwards: the support folder with all icons, themes, backups and settings, and the user defaults.
    /// Refused while traces are left, since they could not be taken out without it. Nothing can be brought back
    /// then, and nothing is saved any more: the program should end. A kill leaves part of it; a repeat removes
    /// the rest.
    Status removeSupportFolder();

private:
    const ApplyServices m_with;
};

} // namespace tavrik
