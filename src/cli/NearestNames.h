#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tavrik {

/// How many bytes must be put in, taken out or replaced to make one of the other, capitals and small letters of
/// ASCII taken as alike.
std::size_t nameDistance(std::string_view a, std::string_view b);

/// A name that might have been meant, and how far it is from what was typed.
struct NearName {
    std::size_t distance = 0;
    std::string name;

    auto operator<=>(const NearName&) const = default;
};

/// " Did you mean A or B?" of the three nearest that are within reach of what was typed; empty when none is.
std::string hintOf(std::vector<NearName> names, std::string_view typed);

} // namespace tavrik
