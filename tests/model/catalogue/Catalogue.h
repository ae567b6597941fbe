#pragma once

#include "icons/IconCache.h"
#include "icons/IconStore.h"
#include "model/catalogue/AppManager.h"
#include "wrappers/WrapperStage.h"

namespace tavrik::test {

/// The catalogue and its icons over the managers of a program.
struct Catalogue {
    explicit Catalogue(Program& of) : program(of) {}

    Program& program;
    IconCache cache{program.mac.files};
    IconStore store{program.mac.files, program.settings, cache};
    AppManager apps{program.database, program.settings, program.wrappers, store, cache};
};

} // namespace tavrik::test
