#include "icons/list/LongestAscent.h"

#include <algorithm>
#include <cstddef>

namespace tavrik {

std::vector<bool> longestAscent(const std::vector<int>& numbers) {
    constexpr std::size_t kNone = static_cast<std::size_t>(-1);
    std::vector<std::size_t> lowestEnds; // at n: where the run of n + 1 numbers with the lowest end ends
    std::vector<std::size_t> before(numbers.size(), kNone);
    for (std::size_t place = 0; place < numbers.size(); ++place) {
        const auto end = std::ranges::lower_bound(lowestEnds, numbers[place], {},
                                                  [&](std::size_t other) { return numbers[other]; });
        if (end != lowestEnds.begin())
            before[place] = *(end - 1);
        if (end == lowestEnds.end())
            lowestEnds.push_back(place);
        else
            *end = place;
    }
    std::vector<bool> belongs(numbers.size());
    for (std::size_t place = lowestEnds.empty() ? kNone : lowestEnds.back(); place != kNone;
         place = before[place])
        belongs[place] = true;
    return belongs;
}

} // namespace tavrik
