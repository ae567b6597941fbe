#pragma once

#include "cli/Command.h"

namespace tavrik {

/// "status": what is staged. Looks only, so it serves beside a running window, and on a damaged recovery file.
class StatusCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    bool json = false;
};

/// "discard": drops what is staged.
class DiscardCommand : public Command {
public:
    ExitCode run(Companion& companion) override;
};

/// "recover": brings what is staged to what is on disk after a crash, and tells it.
class RecoverCommand : public Command {
public:
    ExitCode run(Companion& companion) override;
};

} // namespace tavrik
