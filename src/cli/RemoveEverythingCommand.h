#pragma once

#include "cli/Command.h"

namespace tavrik {

struct Traces;

/// "remove-everything": takes the program's work out of the Mac, after asking; then, after asking once more,
/// what it keeps for itself.
class RemoveEverythingCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    bool yes = false;                 ///< the first question is answered beforehand
    bool deleteSupportFolder = false; ///< and so is the second

private:
    ExitCode removeFromSystem(Companion& companion, const Traces& traces) const;
    ExitCode removeSupportFolder(Companion& companion) const;
};

} // namespace tavrik
