#pragma once

#include "platform/Bytes.h"

#include <concepts>
#include <cstdint>

/// What reader and writer of zip archives share: numbers are little endian.
namespace tavrik::zip {

inline constexpr std::uint32_t kLocalHeader = 0x04034B50;     ///< "PK", 3, 4
inline constexpr std::uint32_t kDirectoryHeader = 0x02014B50; ///< "PK", 1, 2
inline constexpr std::uint32_t kEndRecord = 0x06054B50;       ///< "PK", 5, 6

inline constexpr std::size_t kLocalHeaderSize = 30; ///< bytes, without name and extra field
inline constexpr std::size_t kDirectoryHeaderSize = 46;
inline constexpr std::size_t kEndRecordSize = 22;

inline constexpr std::uint16_t kStored = 0;
inline constexpr std::uint16_t kDeflated = 8;

inline constexpr std::uint16_t kEncrypted = 1u << 0 | 1u << 6 | 1u << 13; ///< any of these flags
inline constexpr std::uint16_t kSizesFollow = 1u << 3; ///< the local header has none; the directory does
inline constexpr std::uint16_t kNameIsUtf8 = 1u << 11;

/// The number at the beginning of `data`, which must be long enough.
template<std::unsigned_integral Number>
Number littleEndian(ByteView data) {
    Number number = 0;
    for (std::size_t place = sizeof(Number); place-- > 0;)
        number = static_cast<Number>(number << 8 | data[place]);
    return number;
}

template<std::unsigned_integral Number>
void appendLittleEndian(Bytes& out, Number number) {
    for (std::size_t place = 0; place < sizeof(Number); ++place)
        out.push_back(static_cast<std::uint8_t>(number >> (8 * place)));
}

} // namespace tavrik::zip
