#include "platform/BookmarkPath.h"

#include "platform/BookmarkFormat.h"
#include "platform/ByteOrder.h"
#include "platform/Utf8.h"

#include <optional>
#include <string_view>

namespace tavrik {

namespace {

using namespace bookmark;

constexpr std::size_t kShortestHeader = 16;
constexpr std::size_t kShortestAliasHeader = 32;
/// A real bookmark has one table, or two; more than this is a loop.
constexpr int kMostTables = 64;
/// Bytes. Far above what a Mac opens; keeps a small bookmark from naming one text a million times.
constexpr std::size_t kLongestPath = 16'384;

Error damaged() {
    return Error{"The bookmark is damaged."};
}

/// What follows the header, in either container. The header's size differs between versions of the system.
std::optional<ByteView> dataPart(ByteView bookmark) {
    if (bookmark.size() < kShortestHeader)
        return std::nullopt;
    const std::string_view mark = textOf(bookmark.first(4));
    if (mark != "book" && mark != "alis")
        return std::nullopt;

    const auto length = readLittle<std::uint32_t>(bookmark, 4);
    if (length == 0 && textOf(bookmark.subspan(8, 4)) == "mark") {
        if (bookmark.size() < kShortestAliasHeader)
            return std::nullopt;
        const auto header = readLittle<std::uint32_t>(bookmark, 16);
        const auto dataLength = readLittle<std::uint32_t>(bookmark, 24);
        if (header < kShortestAliasHeader || !fits(bookmark.size(), header, dataLength))
            return std::nullopt;
        return bookmark.subspan(header, dataLength);
    }

    const auto header = readLittle<std::uint32_t>(bookmark, 12);
    if (header < kShortestHeader || length < header || length > bookmark.size())
        return std::nullopt;
    return bookmark.subspan(header, length - header);
}

class Reader {
public:
    explicit Reader(ByteView data) : m_data(data) {}

    /// Looks for the table that describes the target. It may lie before or behind the others.
    bool findFirstTable() {
        if (!fits(m_data.size(), 0, 4))
            return false;
        std::uint32_t offset = readLittle<std::uint32_t>(m_data, 0);
        for (int tables = 0; offset != 0 && tables < kMostTables; ++tables) {
            if (!fits(m_data.size(), offset, kTableHeaderSize))
                return false;
            const ByteView table = m_data.subspan(offset);
            const auto count = readLittle<std::uint32_t>(table, 16);
            if (readLittle<std::uint32_t>(table, 4) != kTableMark ||
                count > (table.size() - kTableHeaderSize) / kTableEntrySize)
                return false;
            if (readLittle<std::uint32_t>(table, 8) == kFirstTable) {
                m_entries = table.subspan(kTableHeaderSize, std::size_t{count} * kTableEntrySize);
                return true;
            }
            offset = readLittle<std::uint32_t>(table, 12);
        }
        return false;
    }

    /// The content of a key's record; nothing when the key is missing, the record damaged or of another type.
    /// Keys that are texts have their highest bit set, so that they equal none of ours.
    std::optional<ByteView> value(std::uint32_t key, std::uint32_t type) const {
        for (std::size_t entry = 0; entry < m_entries.size(); entry += kTableEntrySize) {
            if (readLittle<std::uint32_t>(m_entries, entry) == key)
                return record(readLittle<std::uint32_t>(m_entries, entry + 4), type);
        }
        return std::nullopt;
    }

    std::optional<ByteView> record(std::uint32_t offset, std::uint32_t type) const {
        if (!fits(m_data.size(), offset, 8) || readLittle<std::uint32_t>(m_data, offset + 4) != type)
            return std::nullopt;
        const auto length = readLittle<std::uint32_t>(m_data, offset);
        if (!fits(m_data.size() - offset - 8, 0, length))
            return std::nullopt;
        return m_data.subspan(offset + 8, length);
    }

private:
    ByteView m_data;
    ByteView m_entries;
};

bool isPathComponent(std::string_view text) {
    return !text.empty() && text != "." && text != ".." && text.find('/') == text.npos &&
           text.find('\0') == text.npos && isUtf8(text);
}

/// Adds "/" and the component; false when it is none or the path grows too long.
bool appendComponent(std::string& path, std::string_view component) {
    if (!isPathComponent(component) || path.size() + component.size() >= kLongestPath)
        return false;
    path += '/';
    path += component;
    return true;
}

/// A bookmark of a volume's root has no components; where the volume is mounted is a path in one text.
Result<MacPath> mountPath(std::string_view text) {
    if (text == "/")
        return MacPath("/");
    std::string path;
    while (!text.empty()) {
        if (text.front() != '/')
            return damaged();
        text.remove_prefix(1);
        const std::string_view component = text.substr(0, text.find('/'));
        if (!appendComponent(path, component))
            return damaged();
        text.remove_prefix(component.size());
    }
    if (path.empty())
        return damaged();
    return MacPath(path);
}

} // namespace

Result<MacPath> pathInBookmark(ByteView bookmark) {
    const auto data = dataPart(bookmark);
    if (!data)
        return damaged();
    Reader reader(*data);
    if (!reader.findFirstTable())
        return damaged();

    const auto components = reader.value(kPathKey, kArrayRecord);
    if (!components || components->size() % 4 != 0)
        return damaged();
    if (components->empty()) {
        const auto mount = reader.value(kVolumePathKey, kTextRecord);
        return mount ? mountPath(textOf(*mount)) : Result<MacPath>(damaged());
    }

    std::string path;
    for (std::size_t i = 0; i < components->size(); i += 4) {
        const auto component = reader.record(readLittle<std::uint32_t>(*components, i), kTextRecord);
        if (!component || !appendComponent(path, textOf(*component)))
            return damaged();
    }
    return MacPath(path);
}

} // namespace tavrik
