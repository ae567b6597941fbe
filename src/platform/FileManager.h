#pragma once

#include "platform/Bytes.h"
#include "platform/Date.h"
#include "platform/Path.h"
#include "platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tavrik {

enum class FileType { file, folder, symbolicLink, other };

struct FileAttributes {
    FileType type = FileType::other;
    std::uint64_t size = 0; ///< bytes
    Date modified;
    Date created;                  ///< where the file system does not tell, `modified`
    std::uint32_t permissions = 0; ///< the nine rights bits and the three above them
    std::uint64_t fileID = 0;      ///< the inode
};

enum class Links { follow, dontFollow };

/// Files of the Mac's volume. Links above the last component are always followed, inside the volume. Every
/// operation blocks for as long as the disk takes; any thread, and none locks. Failures carry errno and name
/// the path.
///
/// New files are 0600 and new folders 0700, whatever the process's mask.
class FileManager {
public:
    virtual ~FileManager() = default;

    /// True when something is there, links followed; a dangling link is nothing.
    virtual bool exists(const MacPath& path) const = 0;

    virtual Result<FileAttributes> attributes(const MacPath& path, Links links = Links::follow) const = 0;

    /// The names in a folder, without "." and "..", in byte order.
    virtual Result<std::vector<std::string>> list(const MacPath& folder) const = 0;

    static constexpr std::size_t kLargestRead = 1u << 30; ///< bytes

    /// The whole file. A file larger than `most` bytes is an error, and so is anything that is not a plain
    /// file.
    virtual Result<Bytes> read(const MacPath& file, std::size_t most = kLargestRead) const = 0;

    /// At most so many bytes from its start: all of a shorter file. Plain files only, of any size.
    virtual Result<Bytes> readBeginning(const MacPath& file, std::size_t bytes) const = 0;

    /// Writes over the file in place in one write, creating it when missing. Not atomic: a failure in the
    /// middle leaves it cut.
    virtual Status write(const MacPath& file, ByteView data) = 0;

    /// Makes a new file with this content. Fails when anything, a link included, is there; a failed write
    /// removes the file again.
    virtual Status create(const MacPath& file, ByteView data) = 0;

    /// Waits until the file's, or the folder's, content is on stable storage.
    virtual Status flush(const MacPath& path) = 0;

    /// Copies a file, or a folder with everything in it, links as links. `to` must not exist. The copy is
    /// complete or absent.
    virtual Status copy(const MacPath& from, const MacPath& to) = 0;

    /// Renames. `to` must not exist.
    virtual Status move(const MacPath& from, const MacPath& to) = 0;

    /// Puts `replacement` in the place of `original` in one step and flushes the folder: at any moment a reader
    /// finds the old or the new content. `original` may be missing. On failure both stay as they were, unless
    /// the flush alone fails: the new content is in place then, but may not outlive a power cut.
    virtual Status replace(const MacPath& original, const MacPath& replacement) = 0;

    /// Removes a file, a link itself, or a folder with everything in it; never follows a link. A failure in the
    /// middle leaves the rest.
    virtual Status remove(const MacPath& path) = 0;

    /// Makes a folder and the missing ones above it. Fine when it is there already as a folder.
    virtual Status createFolder(const MacPath& folder) = 0;

    /// Makes a symbolic link; `target` is stored as it stands.
    virtual Status createLink(const MacPath& link, const std::string& target) = 0;
    virtual Result<std::string> readLink(const MacPath& link) const = 0;

    /// The path with every link in it followed.
    virtual Result<MacPath> resolveLinks(const MacPath& path) const = 0;

    virtual Status setModified(const MacPath& path, Date date) = 0;

    /// Bytes that the user may still write to the disk that holds this folder.
    virtual Result<std::uint64_t> availableSpace(const MacPath& folder) const = 0;
};

} // namespace tavrik
