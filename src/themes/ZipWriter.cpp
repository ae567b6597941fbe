#include "themes/ZipWriter.h"

#include "themes/ZipFormat.h"

#include <libdeflate.h>

#include <utility>

namespace tavrik::zip {

namespace {

constexpr std::uint16_t kVersion = 20;
constexpr std::uint16_t kUnix = 3 << 8;
constexpr std::uint32_t kPlainFile = 0100644u << 16;
constexpr std::uint16_t kFirstDay = 1 << 5 | 1; // 1 January of 1980

void append(Bytes& out, ByteView data) {
    out.insert(out.end(), data.begin(), data.end());
}

/// What local and directory header have in common, from the version needed to the length of the extra field.
void appendCommon(Bytes& out, std::string_view name, ByteView content, std::uint32_t checksum) {
    const auto size = static_cast<std::uint32_t>(content.size());
    appendLittleEndian(out, kVersion);
    appendLittleEndian(out, kNameIsUtf8);
    appendLittleEndian(out, kStored);
    appendLittleEndian(out, std::uint16_t{0}); // midnight
    appendLittleEndian(out, kFirstDay);
    appendLittleEndian(out, checksum);
    appendLittleEndian(out, size);
    appendLittleEndian(out, size);
    appendLittleEndian(out, static_cast<std::uint16_t>(name.size()));
    appendLittleEndian(out, std::uint16_t{0});
}

} // namespace

void Writer::add(std::string_view name, ByteView content) {
    const std::uint32_t checksum = libdeflate_crc32(0, content.data(), content.size());
    const auto offset = static_cast<std::uint32_t>(m_archive.size());
    appendLittleEndian(m_archive, kLocalHeader);
    appendCommon(m_archive, name, content, checksum);
    append(m_archive, bytesOf(name));
    append(m_archive, content);

    appendLittleEndian(m_directory, kDirectoryHeader);
    appendLittleEndian(m_directory, static_cast<std::uint16_t>(kUnix | kVersion));
    appendCommon(m_directory, name, content, checksum);
    appendLittleEndian(m_directory, std::uint16_t{0}); // no comment,
    appendLittleEndian(m_directory, std::uint16_t{0}); // on the first disk,
    appendLittleEndian(m_directory, std::uint16_t{0}); // said to be no text
    appendLittleEndian(m_directory, kPlainFile);
    appendLittleEndian(m_directory, offset);
    append(m_directory, bytesOf(name));
    ++m_count;
}

Bytes Writer::finish() {
    const auto offset = static_cast<std::uint32_t>(m_archive.size());
    append(m_archive, m_directory);
    appendLittleEndian(m_archive, kEndRecord);
    appendLittleEndian(m_archive, std::uint32_t{0}); // one disk
    appendLittleEndian(m_archive, m_count);
    appendLittleEndian(m_archive, m_count);
    appendLittleEndian(m_archive, static_cast<std::uint32_t>(m_directory.size()));
    appendLittleEndian(m_archive, offset);
    appendLittleEndian(m_archive, std::uint16_t{0}); // no comment
    return std::move(m_archive);
}

} // namespace tavrik::zip
