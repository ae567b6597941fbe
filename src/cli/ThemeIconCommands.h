#pragma once

#include "cli/Command.h"

#include <string>

namespace tavrik {

/// "theme add-icon": a picture becomes a theme's icon for an application, at once.
class ThemeIconAddCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    std::string theme;
    std::string bundleID;
    std::string picture; ///< a file of the host
};

/// "theme remove-icon", "theme hide" and "theme unhide". The first two are staged; the last takes a staged hide
/// back, and ends one that is applied at once.
class ThemeIconCommand : public Command {
public:
    enum class Kind { remove, hide, unhide };

    explicit ThemeIconCommand(Kind kind) : m_kind(kind) {}

    ExitCode run(Companion& companion) override;

    std::string theme;
    std::string bundleID;

private:
    Kind m_kind;
};

} // namespace tavrik
