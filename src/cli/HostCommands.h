#pragma once

namespace tavrik {

class CommandLine;

/// Declares the sub-commands that there are for this program's Mac alone, a real or a practice one. Which, is
/// settled by the library that the program links, as with `openHost`.
void declareHostCommands(CommandLine& line);

} // namespace tavrik
