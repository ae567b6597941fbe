#pragma once

#include "platform/Bytes.h"

#include <string>

namespace tavrik::test {

inline std::string hex(ByteView bytes) {
    constexpr const char* kDigits = "0123456789abcdef";
    std::string digits;
    for (const std::uint8_t byte : bytes) {
        digits += kDigits[byte >> 4];
        digits += kDigits[byte & 0xF];
    }
    return digits;
}

} // namespace tavrik::test
