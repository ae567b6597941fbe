#pragma once

#include "platform/Bytes.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tavrik::zip {

/// Writes a zip archive in memory. Equal entries in equal order give equal bytes on every machine: all are
/// stored, rights are 0644, the time is the format's first (1980-01-01 00:00), names are said to be UTF-8, and
/// there are no extra fields. At most 65,534 entries and 4 GB in all, which the caller sees to. Any thread.
class Writer {
public:
    void reserve(std::size_t bytes) { m_archive.reserve(bytes); }

    void add(std::string_view name, ByteView content);

    /// The whole archive; the writer is used up.
    Bytes finish();

private:
    Bytes m_archive;
    Bytes m_directory;
    std::uint16_t m_count = 0;
};

} // namespace tavrik::zip
