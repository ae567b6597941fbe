#pragma once

#include "platform/Bytes.h"

#include <concepts>
#include <cstddef>

/// Numbers in the byte orders of the Mac's formats. The caller has checked that the bytes are there.
namespace tavrik {

template<std::unsigned_integral T>
T readLittle(ByteView bytes, std::size_t offset) {
    T value = 0;
    for (std::size_t i = sizeof(T); i-- > 0;)
        value = static_cast<T>((value << 8) | bytes[offset + i]);
    return value;
}

template<std::unsigned_integral T>
T readBig(ByteView bytes, std::size_t offset) {
    T value = 0;
    for (std::size_t i = 0; i < sizeof(T); ++i)
        value = static_cast<T>((value << 8) | bytes[offset + i]);
    return value;
}

template<std::unsigned_integral T>
void appendLittle(Bytes& bytes, T value) {
    for (std::size_t i = 0; i < sizeof(T); ++i)
        bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

template<std::unsigned_integral T>
void appendBig(Bytes& bytes, T value) {
    for (std::size_t i = sizeof(T); i-- > 0;)
        bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

inline void append(Bytes& bytes, ByteView more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
}

/// Whether `length` bytes at `offset` lie within `size`; safe for any numbers.
inline bool fits(std::size_t size, std::size_t offset, std::size_t length) {
    return offset <= size && length <= size - offset;
}

} // namespace tavrik
