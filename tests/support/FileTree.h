#pragma once

#include "platform/FileManager.h"

#include <map>
#include <string>
#include <vector>

namespace tavrik::test {

/// Everything in a folder, by path relative to it: "a/b.txt" is "file 600 <digest>", "a" is "folder 700", and a
/// link, whose rights mean nothing, "link <target>". No link is followed.
struct FileTree : std::map<std::string, std::string> {};

FileTree treeOf(const FileManager& files, const MacPath& folder);
FileTree treeOf(const HostPath& folder);

/// What changed, a line each: "+ path", "- path", "~ path". Empty for equal trees:
/// `EXPECT_THAT(differences(before, after), ElementsAre("~ Library/Preferences/com.apple.dock.plist"))`.
std::vector<std::string> differences(const FileTree& before, const FileTree& after);

} // namespace tavrik::test
