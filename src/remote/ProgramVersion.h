#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tavrik {

/// "1.10.2": one to four numbers, compared as numbers; what is missing counts as 0.
struct ProgramVersion {
    std::array<std::uint32_t, 4> numbers{};

    bool operator==(const ProgramVersion&) const = default;

    /// By hand, since not every standard library orders arrays in one step.
    std::strong_ordering operator<=>(const ProgramVersion& other) const {
        return numbers < other.numbers   ? std::strong_ordering::less
               : numbers > other.numbers ? std::strong_ordering::greater
                                         : std::strong_ordering::equal;
    }
};

/// Nothing for any other text: signs, blanks, letters, empty parts, more than six digits.
std::optional<ProgramVersion> programVersion(std::string_view text);

/// At least two numbers: "1.0", "1.10.2".
std::string textOf(const ProgramVersion& version);

} // namespace tavrik
