#pragma once

#include "practice/furnish/TreeWriter.h"

namespace tavrik::practice {

/// Writes the Launchpad database of a new practice Mac: the sample applications on their pages and in their
/// folders, the program itself, and what long-used Macs gather: a stale copy of an application and one that is
/// gone. The bundles must stand already, for their bookmarks.
void writeSampleLaunchpad(TreeWriter& tree);

/// A sample application that has a second bundle, forgotten among the downloads: its identifier and that place.
inline constexpr const char* kCopiedApp = "org.example.ferrule";
extern const MacPath kStaleCopy;
/// An application that has a row and nothing on the disk.
extern const MacPath kDepartedApp;

} // namespace tavrik::practice
