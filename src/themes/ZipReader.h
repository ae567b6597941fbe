#pragma once

#include "platform/Bytes.h"
#include "platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

/// A strict reader of zip archives from anywhere: what different programs would read differently is refused.
/// Nothing depends on the locale. Pure; any thread.
namespace tavrik::zip {

/// An entry as the archive lists it. A view: the archive must outlive it.
struct Entry {
    std::string_view name; ///< as it stands, any bytes; a folder's ends with "/"
    ByteView packed;
    std::uint16_t method = 0;
    std::size_t size = 0; ///< bytes unpacked, as the archive claims
    std::uint32_t checksum = 0;

    bool isFolder() const { return name.ends_with('/'); }
};

/// The entries in the order of the directory, none of them unpacked. The directory must end where the archive
/// does and agree with the headers before the entries. Refused are archives of several parts, of more than 4 GB
/// or with a comment, more than `most` entries, and entries that are encrypted, compressed otherwise than by
/// deflate, links or anything else but files and folders. Errors say what the archive is or has: "is
/// encrypted".
Result<std::vector<Entry>> readEntries(ByteView archive, std::size_t most);

/// The content, of the claimed size and with the claimed checksum. Takes memory for the claimed size, but not
/// when the packed bytes cannot hold that much. Errors say what the entry is.
Result<Bytes> unpack(const Entry& entry);

} // namespace tavrik::zip
