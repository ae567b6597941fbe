#include "platform/Machine.h"

#include <charconv>

namespace tavrik {

SystemVersion systemVersionOf(std::string_view text) {
    SystemVersion version;
    const char* const end = text.data() + text.size();
    const char* next = text.data();
    for (int* number : {&version.major, &version.minor, &version.patch}) {
        const auto [stopped, error] = std::from_chars(next, end, *number);
        if (error != std::errc() || stopped == end || *stopped != '.')
            break;
        next = stopped + 1;
    }
    return version;
}

} // namespace tavrik
