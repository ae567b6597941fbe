#pragma once

#include "cli/Command.h"

#include <string>

/// Themes are named by their name or their id.
namespace tavrik {

/// "theme list". Looks only.
class ThemeListCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    bool json = false;
};

/// "theme show": a theme's icons and what is staged for them. Looks only.
class ThemeShowCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    std::string theme;
    bool json = false;
};

/// "theme coverage": what the theme would do for the installed applications.
class ThemeCoverageCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    std::string theme;
    bool json = false;
};

/// "theme create", at once.
class ThemeCreateCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    std::string name;
    bool withActiveIcons = false;
};

/// "theme rename", at once.
class ThemeRenameCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    std::string theme;
    std::string newName;
};

/// "theme apply": stages its icons.
class ThemeApplyCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    std::string theme;
};

/// "theme delete": stages it.
class ThemeDeleteCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    std::string theme;
};

} // namespace tavrik
