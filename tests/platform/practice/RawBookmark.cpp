#include "RawBookmark.h"

#include "platform/practice/ByteOrder.h"

#include <algorithm>

namespace tavrik::practice {

std::uint32_t RawBookmark::record(std::uint32_t type, ByteView content) {
    const std::uint32_t offset = nextOffset();
    appendLittle(m_data, static_cast<std::uint32_t>(content.size()));
    appendLittle(m_data, type);
    append(m_data, content);
    m_data.resize((m_data.size() + 3) / 4 * 4);
    return offset;
}

std::uint32_t RawBookmark::array(const std::vector<std::uint32_t>& records) {
    Bytes content;
    for (const std::uint32_t offset : records)
        appendLittle(content, offset);
    return record(0x0601, content);
}

std::uint32_t RawBookmark::path(const std::vector<std::string_view>& components) {
    std::vector<std::uint32_t> records;
    for (const std::string_view component : components)
        records.push_back(text(component));
    return array(records);
}

std::uint32_t RawBookmark::table(std::uint32_t id, std::uint32_t next, const Entries& entries) {
    const std::uint32_t offset = nextOffset();
    const auto count = static_cast<std::uint32_t>(entries.size());
    for (const std::uint32_t number : {12 + 12 * count, 0xFFFFFFFEu, id, next, count})
        appendLittle(m_data, number);
    for (const auto& [key, record] : entries) {
        for (const std::uint32_t number : {key, record, 0u})
            appendLittle(m_data, number);
    }
    return offset;
}

Bytes RawBookmark::bookmark(std::uint32_t firstTable, std::uint32_t headerSize) const {
    const Bytes data = dataPart(firstTable);
    Bytes result;
    append(result, bytesOf("book"));
    for (const std::uint32_t number :
         {headerSize + static_cast<std::uint32_t>(data.size()), 0x10050000u, headerSize})
        appendLittle(result, number);
    result.resize(headerSize);
    append(result, data);
    return result;
}

Bytes RawBookmark::aliasFile(std::uint32_t firstTable) const {
    const Bytes data = dataPart(firstTable);
    Bytes result;
    append(result, bytesOf({"book\0\0\0\0mark\0\0\0\0", 16}));
    for (const std::uint32_t number : {56u, 56u, static_cast<std::uint32_t>(data.size()), 0x10040000u})
        appendLittle(result, number);
    result.resize(56);
    append(result, data);
    return result;
}

Bytes RawBookmark::dataPart(std::uint32_t firstTable) const {
    Bytes start;
    appendLittle(start, firstTable);
    Bytes data = m_data;
    std::ranges::copy(start, data.begin());
    return data;
}

} // namespace tavrik::practice
