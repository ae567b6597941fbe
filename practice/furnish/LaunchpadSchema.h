#pragma once

namespace tavrik::practice {

/// The statements that make an empty Launchpad database as macOS 12 to 15 have it: tables, triggers and
/// indexes, word for word.
extern const char* const kLaunchpadSchema;

} // namespace tavrik::practice
