#include "cli/DoctorCommand.h"

#include "cli/Companion.h"

namespace tavrik {

ExitCode DoctorCommand::run(Companion& companion) {
    return companion.refuse("This is being built.");
}

} // namespace tavrik
