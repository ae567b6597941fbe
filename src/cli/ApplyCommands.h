#pragma once

#include "cli/Command.h"

namespace tavrik {

/// "plan": what an apply would change, and what stands in its way. Changes nothing.
class PlanCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    bool json = false;
};

/// "apply": brings what is staged into Launchpad and the Dock.
class ApplyCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    bool closeRunningApps = false; ///< without asking
};

/// "refresh": writes what is applied again, and restarts the Dock.
class RefreshCommand : public Command {
public:
    ExitCode run(Companion& companion) override;
};

} // namespace tavrik
