#include "platform/practice/BookmarkCodec.h"

#include "platform/BookmarkPath.h"
#include "platform/ByteOrder.h"

#include <QCryptographicHash>

#include <gmock/gmock.h>

namespace tavrik::practice {

namespace {

constexpr std::size_t kPath = 0x1004;
constexpr std::size_t kVolumePath = 0x2002;

BookmarkTarget atlas() {
    return {.components = {"Applications", "Atlas.app"},
            .fileIDs = {4711, 0xFFFFFFF00000011},
            .created = Date{728'364'122},
            .options = 0x20000000,
            .volumeUUID = "0A1B2C3D-4E5F-4071-8293-A4B5C6D7E8F9",
            .volumeSize = 494'384'795'648,
            .volumeCreated = Date{728'364'122}};
}

BookmarkTarget note() {
    BookmarkTarget target = atlas();
    target.components = {"Users", "ada", "Documents", "Zürich.txt"};
    target.fileIDs = {1, 2, 3, 4};
    target.volumeCreated = Date{694'224'000.5};
    target.isFolder = false;
    target.options = 1024;
    target.homeUser = "ada";
    return target;
}

void appendNumbers(Bytes& bytes, const std::vector<std::size_t>& numbers) {
    for (const std::size_t number : numbers)
        appendLittle(bytes, static_cast<std::uint32_t>(number));
}

/// Builds bookmarks of shapes that the encoder never writes. What it adds is known by its offset.
class RawBookmark {
public:
    using Entries = std::vector<std::pair<std::size_t, std::size_t>>;

    std::size_t next() const { return m_data.size(); }

    std::size_t record(std::size_t type, ByteView content) {
        const std::size_t offset = next();
        appendNumbers(m_data, {content.size(), type});
        append(m_data, content);
        m_data.resize((m_data.size() + 3) / 4 * 4);
        return offset;
    }

    std::size_t text(std::string_view text) { return record(0x0101, bytesOf(text)); }

    std::size_t array(const std::vector<std::size_t>& records) {
        Bytes content;
        appendNumbers(content, records);
        return record(0x0601, content);
    }

    std::size_t path(const std::vector<std::string_view>& components) {
        std::vector<std::size_t> records;
        for (const std::string_view component : components)
            records.push_back(text(component));
        return array(records);
    }

    /// Entries are keys with their records.
    std::size_t table(std::size_t id, std::size_t following, const Entries& entries) {
        const std::size_t offset = next();
        appendNumbers(m_data, {12 + 12 * entries.size(), 0xFFFFFFFE, id, following, entries.size()});
        for (const auto& [key, record] : entries)
            appendNumbers(m_data, {key, record, 0});
        return offset;
    }

    /// Of the one table that most have.
    Bytes bookmark(const Entries& entries) { return bookmark(table(1, 0, entries)); }

    Bytes bookmark(std::size_t firstTable, std::size_t headerSize = 48) const {
        Bytes header(bytesOf("book").begin(), bytesOf("book").end());
        appendNumbers(header, {headerSize + m_data.size(), 0x10050000, headerSize});
        return afterHeader(header, headerSize, firstTable);
    }

    Bytes aliasFile(std::size_t firstTable) const {
        const ByteView marks = bytesOf({"book\0\0\0\0mark\0\0\0\0", 16});
        Bytes header(marks.begin(), marks.end());
        appendNumbers(header, {56, 56, m_data.size(), 0x10040000});
        return afterHeader(header, 56, firstTable);
    }

private:
    Bytes afterHeader(Bytes whole, std::size_t headerSize, std::size_t firstTable) const {
        whole.resize(headerSize);
        appendNumbers(whole, {firstTable});
        append(whole, ByteView(m_data).subspan(4));
        return whole;
    }

    Bytes m_data = Bytes(4); // room for the first table's offset
};

std::string sha256(const Bytes& bytes) {
    const QByteArray data(reinterpret_cast<const char*>(bytes.data()), qsizetype(bytes.size()));
    return QCryptographicHash::hash(data, QCryptographicHash::Sha256).toHex().toStdString();
}

/// The path, or the error in brackets.
std::string decoded(ByteView bookmark) {
    const auto path = pathInBookmark(bookmark);
    return path ? path->string() : "[" + path.error().description + "]";
}

const std::string kDamaged = "[The bookmark is damaged.]";

} // namespace

// The sums are those of bookmarks made outside this program by the system's own layout.
TEST(BookmarkEncoder, WritesTheSystemsOwnBytesAndSharesEqualRecords) {
    EXPECT_EQ(sha256(encodeBookmark(atlas())),
              "3519f7278873da70b19c1d5fa18ea0a9e97ae27c8ec4f9fe170437d4429be4a5");
    EXPECT_EQ(sha256(encodeBookmark(note())),
              "0cc803cb44248860eaaa90461ae50cf1f6b018e1cf1ce7517f339720ff3ccbf1");
}

TEST(BookmarkDecoder, FindsThePathInEveryShapeThatMacsWrite) {
    EXPECT_EQ(decoded(encodeBookmark(note())), "/Users/ada/Documents/Zürich.txt");

    RawBookmark plain;
    const auto target = plain.path({"System", "Applications", "Maps.app"});
    const auto table = plain.table(1, 0, {{kPath, target}});
    EXPECT_EQ(decoded(plain.bookmark(table, 48)), "/System/Applications/Maps.app") << "no optional key";
    EXPECT_EQ(decoded(plain.bookmark(table, 64)), "/System/Applications/Maps.app") << "the longer header";
    EXPECT_EQ(decoded(plain.aliasFile(table)), "/System/Applications/Maps.app") << "a Finder alias";

    RawBookmark two;
    const auto inner = two.path({"Safari.app"});
    const auto outer = two.path({"Wrong.app"});
    const auto first = two.table(0xF000, two.next() + 20 + 12, {{kPath, outer}});
    two.table(1, 0, {{kPath, inner}});
    EXPECT_EQ(decoded(two.bookmark(first)), "/Safari.app") << "the first table is not the one";
}

TEST(BookmarkDecoder, TakesTheMountPathForAVolumesRoot) {
    const std::pair<const char*, std::string> cases[] = {{"/", "/"},
                                                         {"/Volumes/Backup", "/Volumes/Backup"},
                                                         {"", kDamaged},
                                                         {"Volumes", kDamaged},
                                                         {"/a/../b", kDamaged}};
    for (const auto& [mount, expected] : cases) {
        RawBookmark root;
        const auto none = root.array({});
        EXPECT_EQ(decoded(root.bookmark({{kPath, none}, {kVolumePath, root.text(mount)}})), expected) << mount;
    }
}

TEST(BookmarkDecoder, RefusesComponentsThatWouldLeadElsewhere) {
    using namespace std::string_view_literals;
    for (const auto component : {""sv, "."sv, ".."sv, "a/b"sv, "a\0b"sv, "\xC3\x28"sv, "\xED\xA0\x80"sv}) {
        RawBookmark raw;
        const auto path = raw.path({"Applications", component, "Atlas.app"});
        EXPECT_EQ(decoded(raw.bookmark({{kPath, path}})), kDamaged) << component;
    }
}

TEST(BookmarkDecoder, SurvivesEveryTruncationAndEveryFlippedBit) {
    const Bytes whole = encodeBookmark(note());
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_EQ(decoded(ByteView(whole).first(length)), kDamaged) << length;

    // A copy of its own size, so that a sanitizer sees a read beyond the end.
    for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
        Bytes flipped = whole;
        flipped[bit / 8] ^= static_cast<std::uint8_t>(1u << (bit % 8));
        const std::string path = decoded(flipped);
        EXPECT_TRUE(path == kDamaged || (path.starts_with("/") && path.find("/../") == path.npos)) << bit;
    }
}

} // namespace tavrik::practice
