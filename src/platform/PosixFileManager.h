#pragma once

#include "platform/FileManager.h"

namespace tavrik {

/// The file manager over POSIX calls, for a Mac whose "/" is a folder of the host: "/" itself on a real Mac,
/// the volume's folder on a practice Mac. Links, absolute ones too, are followed inside that folder and never
/// lead out of it.
class PosixFileManager : public FileManager {
public:
    explicit PosixFileManager(HostPath root);

    bool exists(const MacPath& path) const override;
    Result<FileAttributes> attributes(const MacPath& path, Links links = Links::follow) const override;
    Result<std::vector<std::string>> list(const MacPath& folder) const override;
    Result<Bytes> read(const MacPath& file, std::size_t most = kLargestRead) const override;
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

    /// Where the host keeps a path: links above the last component, and the last one too when asked for, are
    /// followed. An error when a component above the last is missing or links go in a circle (more than 40).
    Result<HostPath> hostPath(const MacPath& path, Links links) const;

private:
    Result<MacPath> resolve(const MacPath& path, Links links) const;

    HostPath m_root;
};

} // namespace tavrik
