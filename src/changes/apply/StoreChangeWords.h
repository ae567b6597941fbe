#pragma once

#include "changes/apply/StoreChange.h"

#include <string>

namespace tavrik {

/// What a person calls the changes of a kind: "Titles in Launchpad".
std::string headingOf(StoreChange::Kind kind);

/// A change, below that heading: "Atlas -> 𝐀𝐭𝐥𝐚𝐬". `name` is the subject's, where it has one. Wrappers and
/// icons go by what they are, not by where they lie.
std::string inWords(const StoreChange& change, const std::string& name);

} // namespace tavrik
