#include "cli/NearestNames.h"

#include <algorithm>
#include <numeric>

namespace tavrik {

namespace {

char folded(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}

} // namespace

std::size_t nameDistance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t substituted = diagonal + (folded(a[i - 1]) == folded(b[j - 1]) ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, substituted});
        }
    }
    return row[b.size()];
}

std::string hintOf(std::vector<NearName> names, std::string_view typed) {
    const std::size_t reach = std::max<std::size_t>(3, typed.size() / 3);
    std::erase_if(names, [reach](const NearName& name) { return name.distance > reach; });
    std::sort(names.begin(), names.end());
    std::string hint;
    for (std::size_t i = 0; i < std::min<std::size_t>(3, names.size()); ++i)
        hint += (i == 0 ? " Did you mean " : " or ") + names[i].name;
    return hint.empty() ? hint : hint + "?";
}

} // namespace tavrik
