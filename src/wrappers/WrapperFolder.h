#pragma once

#include "platform/Path.h"
#include "platform/Result.h"

#include <string>

namespace tavrik {

struct Mac;

/// The folder of the wrappers, "~/Applications/Tavrik", and what lies in it: wrapper bundles and the warning
/// for whoever finds it. A wrapper is a folder of links into its original, so nothing here ever follows a link
/// to change or remove what it leads to. Background thread only; blocks on the disk and on child processes.
class WrapperFolder {
public:
    /// The name of the warning; it begins with a blank and so comes first.
    static constexpr const char* kWarning = " WARNING! README!.rtf";

    /// Whether an entry of a bundle with this name is a link in its wrapper. A custom icon belongs to the
    /// bundle that it is set on, with its file and the companions of foreign volumes.
    static bool isLinked(const std::string& name);

    explicit WrapperFolder(Mac& mac);

    const MacPath& path() const { return m_path; }

    /// The bundle that stands for an original: of the same file name, since that is how the original is found
    /// again. Empty when the name cannot be a file's.
    MacPath wrapperOf(const MacPath& original) const;

    /// Whether the folder itself, or this wrapper, is a symbolic link that somebody planted.
    bool isLink(const MacPath& wrapper) const;

    bool exists(const MacPath& wrapper) const;

    /// Whether the bundle there is another application's wrapper: two applications of different folders may
    /// have the same file name.
    bool belongsToAnother(const MacPath& wrapper, const std::string& bundleID) const;

    /// Makes the folder and the missing ones above it. False, with a log line, when it cannot be made.
    [[nodiscard]] bool create();

    /// Makes the bundle with a link for each entry of the original. A link that cannot be made is a warning. A
    /// kill leaves a part of the links; building again needs the rest removed first. False, with a log line,
    /// when the folder cannot be made or the original not be listed.
    [[nodiscard]] bool build(const MacPath& wrapper, const MacPath& original);

    /// Removes the bundle with its links. Fine when there is none.
    Status remove(const MacPath& wrapper);

    /// Copies the warning into the folder, unless it is there.
    void addWarning();
    /// Removes it when no wrapper but this one is in the folder.
    void removeWarning(const MacPath& lastWrapper);

private:
    Mac& m_mac;
    MacPath m_path;
    MacPath m_warning;
};

} // namespace tavrik
