#include "themes/ZipReader.h"

#include "themes/ZipFormat.h"

#include <libdeflate.h>

#include <memory>
#include <string>

namespace tavrik::zip {

namespace {

constexpr std::uint32_t kTypeBits = 0170000; // of a file's mode
constexpr std::uint32_t kFile = 0100000;
constexpr std::uint32_t kFolder = 0040000;

Error damaged() {
    return {"is damaged"};
}

/// Where the parts of an archive are, as its end record says.
struct Directory {
    std::size_t offset = 0;
    std::size_t size = 0;
    std::size_t count = 0;
};

Result<Directory> findDirectory(ByteView archive) {
    if (!textOf(archive).starts_with("PK"))
        return Error{"is no zip archive"};
    if (archive.size() < kEndRecordSize)
        return Error{"is cut short"};
    const ByteView record = archive.last(kEndRecordSize);
    if (littleEndian<std::uint32_t>(record) != kEndRecord)
        return Error{"is cut short, or has something behind its end"};
    const auto disks = littleEndian<std::uint32_t>(record.subspan(4));
    const auto countHere = littleEndian<std::uint16_t>(record.subspan(8));
    const auto count = littleEndian<std::uint16_t>(record.subspan(10));
    const auto commentLength = littleEndian<std::uint16_t>(record.subspan(20));
    if (disks != 0 || countHere != count || commentLength != 0)
        return damaged();
    const Directory directory{.offset = littleEndian<std::uint32_t>(record.subspan(16)),
                              .size = littleEndian<std::uint32_t>(record.subspan(12)),
                              .count = count};
    // Lengths are added as 64 bits.
    if (directory.offset + directory.size != archive.size() - kEndRecordSize)
        return damaged();
    return directory;
}

/// An entry's header in the directory.
struct Header {
    std::uint16_t flags = 0;
    std::uint16_t method = 0;
    ByteView sizes; ///< checksum, packed size and size, as in the local header
    std::uint32_t checksum = 0;
    std::size_t packedSize = 0;
    std::size_t size = 0;
    std::uint32_t mode = 0;
    std::size_t offset = 0; ///< of the local header
    std::string_view name;
    std::size_t length = 0; ///< of the header as a whole
};

Result<Header> readHeader(ByteView directory) {
    if (directory.size() < kDirectoryHeaderSize || littleEndian<std::uint32_t>(directory) != kDirectoryHeader)
        return damaged();
    const std::size_t nameLength = littleEndian<std::uint16_t>(directory.subspan(28));
    Header header{.flags = littleEndian<std::uint16_t>(directory.subspan(8)),
                  .method = littleEndian<std::uint16_t>(directory.subspan(10)),
                  .sizes = directory.subspan(16, 12),
                  .checksum = littleEndian<std::uint32_t>(directory.subspan(16)),
                  .packedSize = littleEndian<std::uint32_t>(directory.subspan(20)),
                  .size = littleEndian<std::uint32_t>(directory.subspan(24)),
                  .mode = littleEndian<std::uint32_t>(directory.subspan(38)) >> 16,
                  .offset = littleEndian<std::uint32_t>(directory.subspan(42)),
                  .name = {},
                  .length = kDirectoryHeaderSize + nameLength +
                            littleEndian<std::uint16_t>(directory.subspan(30)) +
                            littleEndian<std::uint16_t>(directory.subspan(32))};
    if (directory.size() < header.length)
        return damaged();
    header.name = textOf(directory.subspan(kDirectoryHeaderSize, nameLength));
    return header;
}

/// The packed bytes, behind a local header that says the same as the directory does. `area` is the archive
/// before its directory.
Result<ByteView> packedBytes(ByteView area, const Header& header) {
    constexpr std::uint16_t kCompared = kEncrypted | kSizesFollow;
    if (header.offset > area.size() || area.size() - header.offset < kLocalHeaderSize)
        return damaged();
    const ByteView local = area.subspan(header.offset);
    const auto flags = littleEndian<std::uint16_t>(local.subspan(6));
    const std::size_t nameLength = littleEndian<std::uint16_t>(local.subspan(26));
    const std::size_t start = kLocalHeaderSize + nameLength + littleEndian<std::uint16_t>(local.subspan(28));
    if (littleEndian<std::uint32_t>(local) != kLocalHeader || local.size() < start ||
        local.size() - start < header.packedSize || ((flags ^ header.flags) & kCompared) != 0 ||
        littleEndian<std::uint16_t>(local.subspan(8)) != header.method ||
        textOf(local.subspan(kLocalHeaderSize, nameLength)) != header.name)
        return damaged();
    if ((flags & kSizesFollow) == 0 && textOf(local.subspan(14, 12)) != textOf(header.sizes))
        return damaged();
    return local.subspan(start, header.packedSize);
}

Status checkKind(const Header& header) {
    if ((header.flags & kEncrypted) != 0)
        return Error{"is encrypted"};
    if (header.method != kStored && header.method != kDeflated)
        return Error{"is compressed in a way that cannot be read"};
    const std::uint32_t type = header.mode & kTypeBits;
    const bool isFolder = header.name.ends_with('/');
    if (type != 0 && type != (isFolder ? kFolder : kFile))
        return Error{"holds a link, or something else that is no file"};
    if (isFolder && header.size != 0)
        return damaged();
    return Done{};
}

} // namespace

Result<std::vector<Entry>> readEntries(ByteView archive, std::size_t most) {
    const auto directory = findDirectory(archive);
    if (!directory)
        return directory.error();
    if (directory->count > most)
        return Error{"holds more than " + std::to_string(most) + " files"};
    const ByteView area = archive.first(directory->offset);
    ByteView rest = archive.subspan(directory->offset, directory->size);
    std::vector<Entry> entries;
    entries.reserve(directory->count);
    while (entries.size() < directory->count) {
        const auto header = readHeader(rest);
        if (!header)
            return header.error();
        if (const auto kind = checkKind(*header); !kind)
            return kind.error();
        const auto packed = packedBytes(area, *header);
        if (!packed)
            return packed.error();
        entries.push_back({.name = header->name,
                           .packed = *packed,
                           .method = header->method,
                           .size = header->size,
                           .checksum = header->checksum});
        rest = rest.subspan(header->length);
    }
    if (!rest.empty())
        return damaged();
    return entries;
}

Result<Bytes> unpack(const Entry& entry) {
    constexpr std::size_t kMostPerByte = 1032; // what deflate makes of one byte at best
    Bytes content;
    if (entry.method == kStored) {
        if (entry.packed.size() != entry.size)
            return damaged();
        content.assign(entry.packed.begin(), entry.packed.end());
    } else {
        if (entry.size / kMostPerByte > entry.packed.size())
            return damaged();
        content.resize(entry.size);
        const std::unique_ptr<libdeflate_decompressor, decltype(&libdeflate_free_decompressor)> decompressor(
            libdeflate_alloc_decompressor(), &libdeflate_free_decompressor);
        if (!decompressor)
            return Error{"is too large for the memory there is"};
        std::size_t taken = 0;
        if (libdeflate_deflate_decompress_ex(decompressor.get(), entry.packed.data(), entry.packed.size(),
                                             content.data(), content.size(), &taken,
                                             nullptr) != LIBDEFLATE_SUCCESS ||
            taken != entry.packed.size())
            return damaged();
    }
    if (libdeflate_crc32(0, content.data(), content.size()) != entry.checksum)
        return damaged();
    return content;
}

} // namespace tavrik::zip
