#pragma once

#include "platform/FileManager.h"

#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace tavrik::test {

/// What is at one place of a tree. Two are equal when kind, rights and content are.
struct TreeEntry {
    FileType type = FileType::other;
    std::uint32_t permissions = 0; ///< always 0 for links, whose rights mean nothing
    std::string content;           ///< the digest of a file, the target of a link

    bool operator==(const TreeEntry&) const = default;
};

std::ostream& operator<<(std::ostream& out, const TreeEntry& entry);

/// Everything in a folder, by path relative to it: "a/b.txt". No link is followed.
using FileTree = std::map<std::string, TreeEntry>;

FileTree treeOf(const FileManager& files, const MacPath& folder);
FileTree treeOf(const HostPath& folder);

/// What changed, a line each: "+ path", "- path", "~ path". Empty for equal trees:
/// `EXPECT_THAT(differences(before, after), ElementsAre("~ Library/Preferences/com.apple.dock.plist"))`.
std::vector<std::string> differences(const FileTree& before, const FileTree& after);

} // namespace tavrik::test
