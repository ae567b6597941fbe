#pragma once

#include "platform/Bytes.h"
#include "platform/Result.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <string>

namespace tavrik {

using Sha256 = std::array<std::uint8_t, 32>;

Sha256 sha256(ByteView data);

/// What a theme file's manifest says of another entry.
struct ManifestEntry {
    std::size_t size = 0; ///< bytes
    Sha256 hash{};

    bool operator==(const ManifestEntry&) const = default;
};

using ManifestEntries = std::map<std::string, ManifestEntry, std::less<>>; ///< by the name of the entry

/// The version of theme files that is written, and the newest that is read.
inline constexpr std::int64_t kThemeFileVersion = 1;

/// The manifest as an XML property list. Pure; any thread.
Result<Bytes> encodeManifest(const ManifestEntries& entries);

/// Errors say what the theme file is or has: "has a damaged manifest". A newer version is told by its number
/// alone, whatever else it holds.
Result<ManifestEntries> decodeManifest(ByteView manifest);

} // namespace tavrik
