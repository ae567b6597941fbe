#pragma once

#include "cli/Command.h"

namespace tavrik {

/// "remove-everything": takes the program's work out of the Mac, after asking; then, after asking once more,
/// what it keeps for itself.
class RemoveEverythingCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    bool yes = false;                 ///< the first question is answered beforehand
    bool deleteSupportFolder = false; ///< and so is the second
};

} // namespace tavrik
