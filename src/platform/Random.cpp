#include "platform/Random.h"

#include <sys/random.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace tavrik {

Bytes SystemRandom::bytes(std::size_t count) {
    constexpr std::size_t kMostPerCall = 256;
    Bytes result(count);
    for (std::size_t done = 0; done < count; done += kMostPerCall) {
        if (::getentropy(result.data() + done, std::min(kMostPerCall, count - done)) != 0) {
            std::perror("no random numbers from the system");
            std::abort();
        }
    }
    return result;
}

std::string makeUUID(Random& random) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    Bytes bytes = random.bytes(16);
    bytes[6] = static_cast<std::uint8_t>(0x40 | (bytes[6] & 0x0F)); // version 4: random
    bytes[8] = static_cast<std::uint8_t>(0x80 | (bytes[8] & 0x3F)); // the usual variant
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10)
            text += '-';
        text += kDigits[bytes[i] >> 4];
        text += kDigits[bytes[i] & 0x0F];
    }
    return text;
}

} // namespace tavrik
