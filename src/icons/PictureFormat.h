#pragma once

#include "platform/Bytes.h"

#include <optional>

namespace tavrik {

/// The kinds of picture that are taken in.
enum class PictureFormat { png, jpeg, tiff, webp, gif, bmp, svg, icns };

/// Told by the content, whatever the file is called; nothing for any other kind. Pure; any thread.
std::optional<PictureFormat> pictureFormat(ByteView data);

/// False when the data ends before its first picture does. PNG, JPEG, GIF and BMP are looked through, since
/// their readers fill up what is missing without a word or cannot say what was wrong; the readers of the others
/// refuse by themselves.
bool holdsWholePicture(ByteView data, PictureFormat format);

} // namespace tavrik
