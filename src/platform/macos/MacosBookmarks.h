#pragma once

#include "platform/Bookmarks.h"

namespace tavrik {
class FileManager;
}

namespace tavrik::macos {

/// The system's own bookmarks. Resolving asks nobody anything and mounts no volume.
class MacosBookmarks : public Bookmarks {
public:
    explicit MacosBookmarks(const FileManager& files) : m_files(files) {}

    Result<Bytes> make(const MacPath& target) const override;
    Result<MacPath> resolve(ByteView bookmark) const override;
    Result<MacPath> recordedPath(ByteView bookmark) const override;
    std::string fileURL(const MacPath& path) const override;

private:
    const FileManager& m_files;
};

} // namespace tavrik::macos
