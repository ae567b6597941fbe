#pragma once

#include "cli/Command.h"
#include "icons/list/ListFilter.h"

namespace tavrik {

/// "apps": the applications that Launchpad shows. All of them; with any filter those that the window's list
/// shows with it, which hides what cannot be restyled unless it is asked for.
class AppsCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    bool json = false;
    ListFilter filter;
    bool isFiltered = false; ///< any of its options was given
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
