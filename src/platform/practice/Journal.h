#pragma once

#include "platform/Date.h"
#include "platform/Path.h"
#include "platform/Result.h"

#include <string>
#include <vector>

namespace tavrik {
class PosixFileManager;
}

namespace tavrik::practice {

/// Adds a line to one of the volume's journals: the moment in seconds since 2001, then each field after a tab.
/// Tabs and line breaks inside a field become blanks. Makes the file, and the folder for it, when missing.
/// Lines of several processes do not mix.
Status appendToJournal(PosixFileManager& files, const MacPath& journal, Date moment,
                       const std::vector<std::string>& fields);

} // namespace tavrik::practice
