#pragma once

#include "platform/Bytes.h"
#include "platform/Result.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

/// The classic resource fork: small pieces of data by type and number. Pure; any thread.
namespace tavrik::practice {

struct Resource {
    std::uint32_t type = 0; ///< four characters, the first in the highest byte: 'icns'
    std::int16_t id = 0;
    std::uint8_t attributes = 0;
    std::optional<std::string> name; ///< up to 255 bytes in the encoding of old
    ByteView data;                   ///< belongs to whoever owns the bytes that it was read from
};

/// The resources in the order of the fork's map, as views into the fork. An error when the fork is damaged. A
/// fork without any, such as the one that the Mac leaves blank, gives an empty list.
Result<std::vector<Resource>> parseResourceFork(ByteView fork);

/// A fork as the Mac writes it, by types in the order of their first resource. An error when it would not fit
/// the format: more than 16 MB before the last resource, or a map of more than 64 KB.
Result<Bytes> encodeResourceFork(std::span<const Resource> resources);

} // namespace tavrik::practice
