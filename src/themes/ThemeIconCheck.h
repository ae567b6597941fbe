#pragma once

#include "platform/Bytes.h"
#include "platform/Result.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tavrik {

/// Largest icon that travels in a theme file: pixels a side.
inline constexpr int kLargestThemeIconSide = 4'096;

/// Whether an icon of this file name may travel in a theme file: named by a bundle identifier with ".png" or
/// ".icns" behind it, visible (it does not begin with a full stop), without "\" and ":", which separate folders
/// elsewhere, and without characters that are not seen, such as those that turn the direction of writing.
bool isPortableIconName(const std::string& fileName);

/// Two names with one key are one file to a Mac, whose file systems compare without case and take composed and
/// decomposed letters for the same. `name` must be UTF-8.
std::string fileNameKey(std::string_view name);

/// How many pixels a picture says it has; as many as the largest of an ICNS when it is no PNG.
std::uint64_t statedPixels(ByteView icon);

/// Decodes the icon to see that it is a whole picture of the kind that its extension says, and not too large.
/// Errors are sentences. Pure; any thread; some 3 ms for 1024 pixels.
Status checkThemeIcon(const std::string& fileName, ByteView content);

} // namespace tavrik
