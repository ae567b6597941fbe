#include "platform/PathComponent.h"

#include "platform/Utf8.h"

namespace tavrik {

bool isSafePathComponent(std::string_view name) {
    if (name.empty() || name.size() > 255 || name == "." || name == ".." || name.front() == '-')
        return false;
    while (!name.empty()) {
        const auto point = takeCodePoint(name);
        if (!point || *point == U'/' || *point < 0x20 || (*point >= 0x7F && *point <= 0x9F) ||
            *point == 0xFFFE || *point == 0xFFFF)
            return false;
    }
    return true;
}

} // namespace tavrik
