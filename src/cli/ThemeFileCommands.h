#pragma once

#include "cli/Command.h"

#include <string>

namespace tavrik {

/// "theme export": a theme as a file. One that is there is replaced only on demand.
class ThemeExportCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    std::string theme;
    std::string file; ///< of the host; empty: the theme's name in the current folder
    bool force = false;
};

/// "theme import": a theme from such a file, at once.
class ThemeImportCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    std::string file; ///< of the host
};

/// "theme import-folder": a theme of the pictures in a folder, at once. Folders in it are not looked into.
class ThemeImportFolderCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    std::string folder; ///< of the host
    std::string name;   ///< empty: the folder's
    bool acceptsDoubtful = false;
    bool json = false;
};

} // namespace tavrik
