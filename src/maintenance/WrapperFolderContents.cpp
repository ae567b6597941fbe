#include "maintenance/WrapperFolderContents.h"

#include "platform/FileManager.h"
#include "wrappers/WrapperFolder.h"

#include <algorithm>
#include <cerrno>

namespace tavrik {

namespace {

bool isOfType(const FileManager& files, const MacPath& path, FileType type) {
    const auto attributes = files.attributes(path, Links::dontFollow);
    return attributes && attributes->type == type;
}

/// A wrapper has nothing of its own but its icon.
bool isWrapper(const FileManager& files, const MacPath& path) {
    if (path.extension() != "app" || !isOfType(files, path, FileType::folder))
        return false;
    const auto names = files.list(path);
    return names && std::ranges::all_of(*names, [&](const std::string& name) {
               return !WrapperFolder::isLinked(name) || isOfType(files, path / name, FileType::symbolicLink);
           });
}

/// A kill may leave the companion of a wrapper that is gone: the file that holds its icon on foreign volumes.
bool isNote(const FileManager& files, const MacPath& path) {
    const std::string name = path.name();
    const bool isCompanion = name.starts_with("._") && name.ends_with(".app");
    return (name == WrapperFolder::kWarning || name == ".DS_Store" || isCompanion) &&
           isOfType(files, path, FileType::file);
}

} // namespace

bool WrapperFolderContents::isForeign(const MacPath& folder, const MacPath& path) const {
    return std::ranges::any_of(foreign, [&](const std::string& name) { return path.isInside(folder / name); });
}

Result<WrapperFolderContents> readWrapperFolder(const FileManager& files, const MacPath& folder) {
    WrapperFolderContents contents;
    const auto standing = files.attributes(folder, Links::dontFollow);
    if (!standing && standing.error().code != ENOENT)
        return Error{folder.string() + " cannot be looked at: " + standing.error().description + "."};
    contents.isThere = standing && standing->type == FileType::folder;
    if (!contents.isThere)
        return contents;
    const auto names = files.list(folder);
    if (!names)
        return Error{folder.string() + " cannot be looked at: " + names.error().description + "."};
    for (const std::string& name : *names) {
        if (isWrapper(files, folder / name))
            contents.wrappers.push_back(name);
        else if (isNote(files, folder / name))
            contents.notes.push_back(name);
        else
            contents.foreign.push_back(name);
    }
    return contents;
}

} // namespace tavrik
