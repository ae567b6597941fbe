#include "cli/HostCommands.h"

namespace tavrik {

void declareHostCommands(CommandLine&) {
    // A real Mac draws and furnishes itself.
}

} // namespace tavrik
