#pragma once

#include "cli/Command.h"
#include "model/ApplicationInfo.h"
#include "platform/Result.h"

#include <optional>
#include <string>

namespace tavrik {

/// "wrapper create" and "wrapper update": a picture for one application, at once.
class WrapperIconCommand : public Command {
public:
    enum class Kind { create, update };

    explicit WrapperIconCommand(Kind kind) : m_kind(kind) {}

    ExitCode run(Companion& companion) override;

    std::string bundleID;
    std::string picture; ///< a file of the host

private:
    Kind m_kind;
};

/// "wrapper remove": the application gets its own look back.
class WrapperRemoveCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    std::string bundleID;
};

} // namespace tavrik
