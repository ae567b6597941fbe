#include "cli/RemoveEverythingCommand.h"

#include "cli/Companion.h"

namespace tavrik {

ExitCode RemoveEverythingCommand::run(Companion& companion) {
    return companion.refuse("This is being built.");
}

} // namespace tavrik
