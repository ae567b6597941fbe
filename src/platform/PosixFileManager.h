#pragma once

#include "platform/FileManager.h"

#include <sys/stat.h>

#include <system_error>

namespace tavrik {

/// The file manager over POSIX calls, for a Mac whose "/" is a folder of the host: "/" itself on a real Mac,
/// the volume's folder on a practice Mac. Links, absolute ones too, are followed inside that folder and never
/// lead out of it.
///
/// A copy grows beside its target under the target's name with `kUnfinishedCopy` at the end, and takes the
/// target's name when it is complete; a kill may leave it there, and the next copy to the same target removes
/// it. Copied files are 0600, or 0700 where the owner may run them, and keep their modification date.
class PosixFileManager : public FileManager {
public:
    static constexpr const char* kUnfinishedCopy = ".tavrik-copy";

    explicit PosixFileManager(HostPath root);

    bool exists(const MacPath& path) const override;
    Result<FileAttributes> attributes(const MacPath& path, Links links = Links::follow) const override;
    Result<std::vector<std::string>> list(const MacPath& folder) const override;
    Result<Bytes> read(const MacPath& file, std::size_t most = kLargestRead) const override;
    Result<Bytes> readBeginning(const MacPath& file, std::size_t bytes) const override;
    Status write(const MacPath& file, ByteView data) override;
    Status create(const MacPath& file, ByteView data) override;
    Status flush(const MacPath& path) override;
    Status copy(const MacPath& from, const MacPath& to) override;
    Status move(const MacPath& from, const MacPath& to) override;
    Status replace(const MacPath& original, const MacPath& replacement) override;
    Status remove(const MacPath& path) override;
    Status createFolder(const MacPath& folder) override;
    Status createLink(const MacPath& link, const std::string& target) override;
    Result<std::string> readLink(const MacPath& link) const override;
    Result<MacPath> resolveLinks(const MacPath& path) const override;
    Status setModified(const MacPath& path, Date date) override;
    Result<std::uint64_t> availableSpace(const MacPath& folder) const override;

    /// Where the host keeps a path: links above the last component, and the last one too when asked for, are
    /// followed. An error when a component above the last is missing or links go in a circle (more than 40).
    Result<HostPath> hostPath(const MacPath& path, Links links) const;

protected:
    /// Why the system does not let the program at a path, before anything is done there; nothing when it does.
    /// Where something is and what it is may always be asked.
    virtual std::error_code refusalAt(const MacPath&) const { return {}; }

private:
    static Error failure(const MacPath& path, std::error_code reason);
    static Error failure(const MacPath& path, std::errc reason);

    /// The path for a call to the system. On the host's own root the links are left to the system.
    Result<std::string> locate(const MacPath& path, Links links) const;

    /// The same for an entry that is to be made, moved or removed by its own name: "/", "." and ".." at the end
    /// are refused, since they would name a folder above.
    Result<std::string> locateEntry(const MacPath& path) const;

    /// What is at a path.
    std::error_code look(const MacPath& path, Links links, struct stat& status) const;

    HostPath m_root;
};

} // namespace tavrik
