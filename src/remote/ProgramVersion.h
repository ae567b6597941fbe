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

    auto operator<=>(const ProgramVersion&) const = default;
};

/// Nothing for any other text: signs, blanks, letters, empty parts, more than six digits.
std::optional<ProgramVersion> programVersion(std::string_view text);

/// At least two numbers: "1.0", "1.10.2".
std::string textOf(const ProgramVersion& version);

} // namespace tavrik
