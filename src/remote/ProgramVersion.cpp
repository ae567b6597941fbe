#include "remote/ProgramVersion.h"

#include <algorithm>

namespace tavrik {

std::optional<ProgramVersion> programVersion(std::string_view text) {
    constexpr std::size_t mostDigits = 6;
    ProgramVersion version;
    for (std::uint32_t& number : version.numbers) {
        const std::size_t end = std::min(text.find('.'), text.size());
        const std::string_view digits = text.substr(0, end);
        if (digits.empty() || digits.size() > mostDigits)
            return std::nullopt;
        for (const char digit : digits) {
            if (digit < '0' || digit > '9')
                return std::nullopt;
            number = number * 10 + static_cast<std::uint32_t>(digit - '0');
        }
        if (end == text.size())
            return version;
        text.remove_prefix(end + 1);
    }
    return std::nullopt;
}

std::string textOf(const ProgramVersion& version) {
    std::size_t count = version.numbers.size();
    while (count > 2 && version.numbers[count - 1] == 0)
        --count;
    std::string text;
    for (std::size_t index = 0; index < count; ++index)
        text += (index == 0 ? "" : ".") + std::to_string(version.numbers[index]);
    return text;
}

} // namespace tavrik
