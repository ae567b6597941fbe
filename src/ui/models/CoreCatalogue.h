#pragma once

#include <span>

namespace tavrik {

/// What the parts below the window say to a person, in English, with %1, %2 ... for what differs: names, paths,
/// numbers, reasons. The program's other face and the logs say it as it stands; the window looks it up here,
/// and in the catalogue of its language (context "Core"). `tools/sentences` tells what is missing.

/// Sentences, and parts of sentences; also found within others.
std::span<const char* const> coreSentences();

/// A sentence that the window says in another way, since it has a place of its own for what the companion is
/// told by a command. The second one is what is translated; both have the same values.
struct Reworded {
    const char* told;
    const char* shown;
};

std::span<const Reworded> rewordedSentences();

/// Headings, states, and what questions say: found only when they are all that is said.
std::span<const char* const> coreLabels();

} // namespace tavrik
