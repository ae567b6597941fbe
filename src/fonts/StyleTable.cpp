#include "fonts/StyleTable.h"

#include <algorithm>

namespace tavrik {

StyleTable::StyleTable() {
    for (std::size_t code = 0; code < m_written.size(); ++code)
        m_written[code] = {{static_cast<char>(code)}, 1};
}

void StyleTable::add(const std::map<std::string, std::string>& map) {
    for (const auto& [plain, styled] : map) {
        Written& written = m_written[static_cast<unsigned char>(plain.front())];
        std::ranges::copy(styled, written.bytes.begin());
        written.count = static_cast<std::uint32_t>(styled.size());
    }
}

} // namespace tavrik
