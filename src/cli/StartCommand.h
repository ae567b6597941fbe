#pragma once

#include "cli/Command.h"

namespace tavrik {

/// "start": the checks at the start of the program, with their questions asked here.
class StartCommand : public Command {
public:
    ExitCode run(Companion& companion) override;
};

} // namespace tavrik
