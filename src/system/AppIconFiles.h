#pragma once

#include "platform/Bytes.h"
#include "platform/Path.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace tavrik {

class FileManager;

/// The icon files that a bundle has, the preferred one first: the one that its information dictionary names,
/// then "icon", "Icon" and "app"; of each name the first place that has it. Looked for one by one, as they are
/// asked for. Any thread; reads files.
class AppIconFiles {
public:
    AppIconFiles(const FileManager& files, const MacPath& bundle);

    struct File {
        MacPath path;
        std::uint64_t size = 0; ///< bytes
    };

    /// Nothing when there are no more.
    std::optional<File> next();

private:
    const FileManager& m_files;
    MacPath m_bundle;
    std::array<std::string, 4> m_names; ///< without ".icns"; empty for none
    std::size_t m_next = 0;
};

/// How much of an icon file `mayBeIconFile` looks at, in bytes from the start.
inline constexpr std::size_t kIconFileHeader = 64;

/// Whether a file begins as one that can be decoded, and is not cut short as far as its header tells. Pure; any
/// thread.
bool mayBeIconFile(ByteView beginning, std::uint64_t size);

} // namespace tavrik
