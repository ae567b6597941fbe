#pragma once

namespace tavrik {

class Companion;

enum class ExitCode {
    done = 0,
    failed = 1,  ///< something went wrong; the sentence on standard error says what
    usage = 2,   ///< the command line was wrong
    refused = 3, ///< the command was understood and declined, and nothing was changed
};

/// One sub-command of the companion. Made when the command line is declared, its options bound to its members;
/// run at most once.
class Command {
public:
    virtual ~Command() = default;

    /// On a background thread. Prints its answer and its errors itself.
    virtual ExitCode run(Companion& companion) = 0;
};

} // namespace tavrik
