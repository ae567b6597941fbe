#include "platform/Utf8.h"

#include <algorithm>

namespace tavrik {

bool isUtf8(std::string_view text) {
    while (true) {
        const auto ascii = std::ranges::find_if(text, [](char byte) { return (byte & 0x80) != 0; });
        text.remove_prefix(static_cast<std::size_t>(ascii - text.begin()));
        if (text.empty())
            return true;
        if (!takeCodePoint(text))
            return false;
    }
}

} // namespace tavrik
