#pragma once

#include "platform/Bytes.h"

#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

namespace tavrik::practice {

/// Builds bookmarks of shapes that the encoder never writes. Offsets count from the end of the header.
class RawBookmark {
public:
    using Entries = std::vector<std::pair<std::uint32_t, std::uint32_t>>; ///< key, record

    std::uint32_t record(std::uint32_t type, ByteView content);

    std::uint32_t text(std::string_view text) { return record(0x0101, bytesOf(text)); }

    std::uint32_t array(const std::vector<std::uint32_t>& records);
    std::uint32_t path(const std::vector<std::string_view>& components);
    std::uint32_t table(std::uint32_t id, std::uint32_t next, const Entries& entries);

    /// Where the next record or table will be.
    std::uint32_t nextOffset() const { return static_cast<std::uint32_t>(m_data.size()); }

    Bytes bookmark(std::uint32_t firstTable, std::uint32_t headerSize = 48) const;
    Bytes aliasFile(std::uint32_t firstTable) const;

private:
    Bytes dataPart(std::uint32_t firstTable) const;

    Bytes m_data = Bytes(4);
};

} // namespace tavrik::practice
