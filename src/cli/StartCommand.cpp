#include "cli/StartCommand.h"

#include "cli/Companion.h"

namespace tavrik {

ExitCode StartCommand::run(Companion& companion) {
    return companion.refuse("This is being built.");
}

} // namespace tavrik
