#pragma once

#include "platform/Date.h"
#include "practice/furnish/TreeWriter.h"

namespace tavrik::practice {

/// Writes the program's own bundle, with its icon file and the note that goes into the folder of the wrappers.
void writeProgramBundle(TreeWriter& tree, const Bytes& icon);

/// When that bundle was last changed.
Date programModifiedDate();

inline constexpr const char* kProgramName = "Tavrik";
inline constexpr const char* kProgramCategory = "public.app-category.utilities";

/// A rich text that greets who opens the folder of the wrappers.
extern const char* const kWarningText;

} // namespace tavrik::practice
