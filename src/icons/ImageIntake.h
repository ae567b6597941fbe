#pragma once

#include "platform/Bytes.h"
#include "platform/Result.h"

#include <QImage>

#include <cstddef>
#include <string_view>
#include <vector>

namespace tavrik {

/// Largest picture that is taken in: pixels a side, and bytes of the decoded picture.
inline constexpr int kLargestPictureSide = 16'384;
inline constexpr std::size_t kLargestPictureBytes = 512u << 20;

/// Reads a picture that a person hands over: SVG at full size, ICNS and ICO at their largest representation,
/// and of PNG, JPEG, TIFF, WebP, GIF, BMP and whatever else the image plugins or the system read the first
/// frame. The orientation recorded in the file is honoured, colours are converted to sRGB, transparency is
/// kept. Anything else, and anything damaged, cut short or too large, is an error in a sentence that says what
/// was wrong and what would work. `name` is what the person called the file. Pure; any thread.
Result<QImage> readPicture(ByteView data, std::string_view name);

/// How the names of files that can be read on this system end, behind the full stop, in small letters.
std::vector<std::string_view> pictureExtensions();

} // namespace tavrik
