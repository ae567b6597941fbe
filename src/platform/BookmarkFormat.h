#pragma once

#include <cstdint>

/// The numbers of the bookmark format that the encoder and the decoder share. Every number in a bookmark is
/// little-endian, except dates; every offset counts from the end of the header, where the data part begins with
/// the offset of its first table of contents.
namespace tavrik::bookmark {

inline constexpr std::uint32_t kTextRecord = 0x0101;
inline constexpr std::uint32_t kDataRecord = 0x0201;
inline constexpr std::uint32_t kInt32Record = 0x0303;
inline constexpr std::uint32_t kInt64Record = 0x0304;
inline constexpr std::uint32_t kDateRecord = 0x0400; ///< big-endian double, seconds since 2001
inline constexpr std::uint32_t kTrueRecord = 0x0501;
inline constexpr std::uint32_t kArrayRecord = 0x0601;
inline constexpr std::uint32_t kURLRecord = 0x0901;

inline constexpr std::uint32_t kPathKey = 0x1004;
inline constexpr std::uint32_t kFileIDsKey = 0x1005;
inline constexpr std::uint32_t kResourceFlagsKey = 0x1010;
inline constexpr std::uint32_t kCreationDateKey = 0x1040;
inline constexpr std::uint32_t kVolumePathKey = 0x2002;
inline constexpr std::uint32_t kVolumeURLKey = 0x2005;
inline constexpr std::uint32_t kVolumeNameKey = 0x2010;
inline constexpr std::uint32_t kVolumeUUIDKey = 0x2011;
inline constexpr std::uint32_t kVolumeSizeKey = 0x2012;
inline constexpr std::uint32_t kVolumeDateKey = 0x2013;
inline constexpr std::uint32_t kVolumeFlagsKey = 0x2020;
inline constexpr std::uint32_t kVolumeIsRootKey = 0x2030;
inline constexpr std::uint32_t kDepthBelowHomeKey = 0xC001;
inline constexpr std::uint32_t kUserNameKey = 0xC011;
inline constexpr std::uint32_t kUserIDKey = 0xC012;
inline constexpr std::uint32_t kOptionsKey = 0xD010;

/// In the place of a record's type, before a table of contents.
inline constexpr std::uint32_t kTableMark = 0xFFFFFFFE;
inline constexpr std::uint32_t kFirstTable = 1;
inline constexpr std::uint32_t kTableHeaderSize = 20; ///< length, mark, identifier, next, count
inline constexpr std::uint32_t kTableEntrySize = 12;  ///< key, offset, zero

} // namespace tavrik::bookmark
