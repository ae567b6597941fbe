#pragma once

#include "cli/Command.h"

#include <string>

namespace tavrik {

/// "picture": what a person would see on the practice Mac, as a PNG file.
class PictureCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    std::string file; ///< of the host, ending in ".png"
    int scale = 1;
    bool dark = false;
};

/// "practice where": the volume's folder, alone on a line.
class PracticeWhereCommand : public Command {
public:
    ExitCode run(Companion& companion) override;
};

/// "practice reset": a new practice Mac in the place of the old.
class PracticeResetCommand : public Command {
public:
    ExitCode run(Companion& companion) override;
};

} // namespace tavrik
