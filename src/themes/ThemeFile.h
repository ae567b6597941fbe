#pragma once

#include "platform/Bytes.h"
#include "platform/Result.h"
#include "themes/Theme.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>

namespace tavrik {

/// A theme as people hand it to each other: a zip archive (".tavriktheme") of "Info.plist" (the record),
/// "Icons/" and "Manifest.plist", which gives the size and the SHA-256 of every other entry.
struct ThemePackage {
    Theme theme;
    std::map<std::string, Bytes> icons; ///< content by file name: "com.example.atlas.png"

    bool operator==(const ThemePackage&) const = default;
};

/// Limits of what is taken in.
inline constexpr std::size_t kLargestThemeFile = 512u << 20;  ///< bytes of the archive
inline constexpr std::size_t kLargestThemeSize = 1024u << 20; ///< bytes of all that is in it
inline constexpr std::size_t kLargestThemeIcon = 32u << 20;   ///< bytes of one icon file
inline constexpr std::size_t kMostThemeIcons = 5'000;
inline constexpr std::uint64_t kMostThemePixels = 8ull << 30; ///< of all icons together

/// Equal packages give equal bytes. The icons are stored as they are: they are compressed already. Pure; any
/// thread.
Result<Bytes> writeThemeFile(const ThemePackage& package);

/// All of the package, checked against its manifest and decoded once to see that each icon is a picture of a
/// size that is taken in; or an error in a sentence. Refused are links, folders besides "Icons", names that
/// lead elsewhere or are one to a Mac, entries that the manifest does not list or that are missing, wrong
/// hashes, encrypted entries, newer formats, and whatever is over a limit, without unpacking it. `name` is what
/// the person called the file. Pure; any thread; uses all cores, 3 ms of them for an icon of 1024 pixels.
Result<ThemePackage> readThemeFile(ByteView file, const std::string& name);

} // namespace tavrik
