#pragma once

#include <vector>

namespace tavrik {

/// Which of the numbers, all different, belong to the longest run that ascends from left to right, others in
/// between: what may stay where it is while the rest moves. As many answers as numbers. O(n log n); pure.
std::vector<bool> longestAscent(const std::vector<int>& numbers);

} // namespace tavrik
