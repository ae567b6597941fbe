#include "platform/practice/AppleDouble.h"

#include "platform/ByteOrder.h"

#include <algorithm>
#include <string>

namespace tavrik::practice {

namespace {

constexpr std::uint32_t kMagic = 0x00051607;
constexpr std::uint32_t kVersion = 0x00020000;
constexpr std::string_view kFiller = "Mac OS X        ";
constexpr std::uint32_t kResourceForkEntry = 2;
constexpr std::uint32_t kFinderInfoEntry = 9;
constexpr std::size_t kCountOffset = 24;
constexpr std::size_t kEntriesOffset = 26;
constexpr std::size_t kEntrySize = 12;
constexpr std::size_t kFinderInfoOffset = kEntriesOffset + 2 * kEntrySize; ///< where the Mac writes it

/// The Mac's blank fork: a header, its text, and a map without types.
Bytes blankFork() {
    constexpr std::uint32_t kForkHeader = 256;
    constexpr std::uint32_t kForkMap = 30;
    Bytes header;
    for (const std::uint32_t number : {kForkHeader, kForkHeader, 0u, kForkMap})
        appendBig(header, number);
    Bytes fork = header;
    append(fork, bytesOf("This resource fork intentionally left blank   "));
    fork.resize(kForkHeader);
    append(fork, header);
    fork.resize(kForkHeader + 24);
    for (const int number : {28, 30, 0xFFFF}) // type list, name list, no types
        appendBig(fork, static_cast<std::uint16_t>(number));
    return fork;
}

void appendEntry(Bytes& file, std::uint32_t id, std::size_t offset, std::size_t length) {
    appendBig(file, id);
    appendBig(file, static_cast<std::uint32_t>(offset));
    appendBig(file, static_cast<std::uint32_t>(length));
}

Bytes copyOf(ByteView bytes) {
    return {bytes.begin(), bytes.end()};
}

} // namespace

bool AppleDouble::isEmpty() const {
    return *this == AppleDouble();
}

Result<AppleDouble> decodeAppleDouble(ByteView file) {
    const Error damaged{"The AppleDouble file is damaged."};
    if (file.size() < kEntriesOffset || readBig<std::uint32_t>(file, 0) != kMagic ||
        readBig<std::uint32_t>(file, 4) != kVersion)
        return damaged;
    const std::size_t count = readBig<std::uint16_t>(file, kCountOffset);
    if (!fits(file.size(), kEntriesOffset, count * kEntrySize))
        return damaged;

    AppleDouble content;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t entry = kEntriesOffset + i * kEntrySize;
        const auto id = readBig<std::uint32_t>(file, entry);
        const auto offset = readBig<std::uint32_t>(file, entry + 4);
        const auto length = readBig<std::uint32_t>(file, entry + 8);
        if (!fits(file.size(), offset, length))
            return damaged;
        const ByteView part = file.subspan(offset, length);
        if (id == kFinderInfoEntry && length >= kFinderInfoSize) {
            content.finderInfo = copyOf(part.first(kFinderInfoSize));
            // Attributes are found by their distance from the file's start, so they cannot be put elsewhere.
            if (offset == kFinderInfoOffset)
                content.attributes = copyOf(part.subspan(kFinderInfoSize));
        } else if (id == kResourceForkEntry) {
            content.resourceFork = copyOf(part);
        }
    }
    if (content.resourceFork == blankFork())
        content.resourceFork.clear();
    return content;
}

Bytes encodeAppleDouble(const AppleDouble& content) {
    const Bytes fork = content.resourceFork.empty() ? blankFork() : content.resourceFork;
    const std::size_t infoLength = kFinderInfoSize + content.attributes.size();

    Bytes file;
    file.reserve(kFinderInfoOffset + infoLength + fork.size());
    appendBig(file, kMagic);
    appendBig(file, kVersion);
    append(file, bytesOf(kFiller));
    appendBig(file, std::uint16_t{2});
    appendEntry(file, kFinderInfoEntry, kFinderInfoOffset, infoLength);
    appendEntry(file, kResourceForkEntry, kFinderInfoOffset + infoLength, fork.size());
    append(file, content.finderInfo);
    append(file, content.attributes);
    append(file, fork);
    return file;
}

MacPath companionOf(const MacPath& path) {
    const std::string name = path.name();
    if (name.empty() || name.starts_with(kCompanionPrefix))
        return MacPath();
    return path.parent() / (std::string(kCompanionPrefix) + name);
}

} // namespace tavrik::practice
