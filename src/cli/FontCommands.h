#pragma once

#include "cli/Command.h"

#include <string>

namespace tavrik {

/// "font list": the styles, each written in itself.
class FontListCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    std::string preview; ///< empty: each style's own name
    bool json = false;
};

/// "font set": stages a style for all names.
class FontSetCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    std::string name;
};

/// "font reset": stages plain text for all names.
class FontResetCommand : public Command {
public:
    ExitCode run(Companion& companion) override;
};

/// "font show": the style in effect and what is staged. Looks only.
class FontShowCommand : public Command {
public:
    ExitCode run(Companion& companion) override;
};

} // namespace tavrik
