#pragma once

#include "cli/Command.h"

namespace tavrik {

/// "apps": the applications that Launchpad shows.
class AppsCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    bool json = false;
};

/// "dock": the Dock's application tiles.
class DockCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    bool json = false;
};

/// "wrapper list": the applications that have a wrapper.
class WrapperListCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    bool json = false;
};

} // namespace tavrik
