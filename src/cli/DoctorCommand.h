#pragma once

#include "cli/Command.h"

namespace tavrik {

/// "doctor": what is not as it should be. Looks only, unless it is to repair.
class DoctorCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    bool json = false;
    bool repair = false;
};

} // namespace tavrik
