#pragma once

namespace tavrik {

class CommandLine;

/// Declares the sub-commands that only this program's host has. They come with the host's library.
void declareHostCommands(CommandLine& line);

} // namespace tavrik
