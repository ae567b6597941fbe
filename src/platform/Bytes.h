#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace tavrik {

using Bytes = std::vector<std::uint8_t>;
using ByteView = std::span<const std::uint8_t>;

/// The bytes of a text, without a terminator.
inline ByteView bytesOf(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

/// Bytes seen as text, unchecked: the caller knows that they are.
inline std::string_view textOf(ByteView bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

} // namespace tavrik
