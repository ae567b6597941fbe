#include "platform/BookmarkFormat.h"
#include "platform/ByteOrder.h"
#include "platform/practice/BookmarkCodec.h"

#include <algorithm>
#include <array>
#include <bit>
#include <map>
#include <string_view>

namespace tavrik::practice {

namespace {

using namespace bookmark;

constexpr std::uint32_t kHeaderSize = 48;
constexpr std::uint32_t kVersion = 0x10040000;

using Flags = std::array<std::uint64_t, 3>; ///< flags, which of them are valid, zero

/// The records of a data part. An equal record is written once and shared, as the system does.
class Records {
public:
    std::uint32_t add(std::uint32_t type, ByteView content) {
        for (const Record& record : m_records) {
            const auto* start = m_data.data() + record.offset + 8;
            if (record.type == type && std::ranges::equal(ByteView(start, record.length), content))
                return record.offset;
        }
        const Record record{type, static_cast<std::uint32_t>(m_data.size()),
                            static_cast<std::uint32_t>(content.size())};
        appendLittle(m_data, record.length);
        appendLittle(m_data, record.type);
        append(m_data, content);
        m_data.resize((m_data.size() + 3) / 4 * 4);
        m_records.push_back(record);
        return record.offset;
    }

    std::uint32_t text(std::string_view text) { return add(kTextRecord, bytesOf(text)); }

    std::uint32_t url(std::string_view text) { return add(kURLRecord, bytesOf(text)); }

    std::uint32_t yes() { return add(kTrueRecord, {}); }

    std::uint32_t int32(std::uint32_t value) { return number(kInt32Record, value); }

    std::uint32_t int64(std::uint64_t value) { return number(kInt64Record, value); }

    std::uint32_t date(Date date) {
        Bytes content;
        appendBig(content, std::bit_cast<std::uint64_t>(date.sinceReference));
        return add(kDateRecord, content);
    }

    std::uint32_t flags(const Flags& flags) {
        Bytes content;
        for (const std::uint64_t word : flags)
            appendLittle(content, word);
        return add(kDataRecord, content);
    }

    std::uint32_t array(const std::vector<std::uint32_t>& offsets) {
        Bytes content;
        for (const std::uint32_t offset : offsets)
            appendLittle(content, offset);
        return add(kArrayRecord, content);
    }

    /// The whole data part: the table's offset, the records, the table.
    Bytes withTable(const std::map<std::uint32_t, std::uint32_t>& entries) && {
        const auto table = static_cast<std::uint32_t>(m_data.size());
        const auto count = static_cast<std::uint32_t>(entries.size());
        appendLittle(m_data, kTableHeaderSize - 8 + kTableEntrySize * count);
        appendLittle(m_data, kTableMark);
        appendLittle(m_data, kFirstTable);
        appendLittle(m_data, std::uint32_t{0});
        appendLittle(m_data, count);
        for (const auto& [key, offset] : entries) {
            appendLittle(m_data, key);
            appendLittle(m_data, offset);
            appendLittle(m_data, std::uint32_t{0});
        }
        Bytes start;
        appendLittle(start, table);
        std::ranges::copy(start, m_data.begin());
        return std::move(m_data);
    }

private:
    struct Record {
        std::uint32_t type;
        std::uint32_t offset;
        std::uint32_t length;
    };

    template<std::unsigned_integral T>
    std::uint32_t number(std::uint32_t type, T value) {
        Bytes content;
        appendLittle(content, value);
        return add(type, content);
    }

    Bytes m_data = Bytes(4);
    std::vector<Record> m_records;
};

} // namespace

Bytes encodeBookmark(const BookmarkTarget& target) {
    Records records;
    std::map<std::uint32_t, std::uint32_t> table;

    // The order of the records is the system's own.
    table[kOptionsKey] = records.int32(target.options);

    std::vector<std::uint32_t> components;
    components.reserve(target.components.size());
    for (const std::string& component : target.components)
        components.push_back(records.text(component));
    table[kPathKey] = records.array(components);

    std::vector<std::uint32_t> fileIDs;
    fileIDs.reserve(target.fileIDs.size());
    for (const std::uint64_t fileID : target.fileIDs)
        fileIDs.push_back(records.int64(fileID));
    table[kFileIDsKey] = records.array(fileIDs);

    table[kCreationDateKey] = records.date(target.created);
    table[kResourceFlagsKey] = records.flags({target.isFolder ? 2u : 1u, 0xF, 0});

    if (target.homeUser) {
        // The home folder itself is two components: "Users" and the user.
        const std::size_t depth = std::max<std::size_t>(target.components.size(), 2) - 2;
        table[kDepthBelowHomeKey] = records.int64(depth);
        table[kUserIDKey] = records.int32(target.homeUserID);
        table[kUserNameKey] = records.text(*target.homeUser);
    }

    table[kVolumeURLKey] = records.url("file:///");
    table[kVolumeNameKey] = records.text(target.volumeName);
    table[kVolumeSizeKey] = records.int64(target.volumeSize);
    table[kVolumeDateKey] = records.date(target.volumeCreated);
    table[kVolumeUUIDKey] = records.text(target.volumeUUID);
    table[kVolumeFlagsKey] =
        records.flags({0x1'0000'0081, 0x1'0000'13EF, 0}); // local, internal, persistent ids
    table[kVolumePathKey] = records.text("/");
    table[kVolumeIsRootKey] = records.yes();

    const Bytes data = std::move(records).withTable(table);
    Bytes bookmark;
    bookmark.reserve(kHeaderSize + data.size());
    append(bookmark, bytesOf("book"));
    appendLittle(bookmark, static_cast<std::uint32_t>(kHeaderSize + data.size()));
    appendLittle(bookmark, kVersion);
    appendLittle(bookmark, kHeaderSize);
    bookmark.resize(kHeaderSize);
    append(bookmark, data);
    return bookmark;
}

} // namespace tavrik::practice
