#pragma once

#include "platform/Bytes.h"

#include <QByteArray>

#include <optional>

namespace tavrik {

/// The kinds of picture that are told by their first bytes. Compressed drawings are drawings in gzip.
enum class PictureFormat { png, jpeg, tiff, webp, gif, bmp, svg, compressedSvg, icns };

/// Told by the content, whatever the file is called; nothing for any other kind. Pure; any thread.
std::optional<PictureFormat> pictureFormat(ByteView data);

/// What an image plugin calls the kind of a picture that it would read, by content; empty when none would.
/// Never a drawing: those are not left to plugins, which open other files.
QByteArray pluginFormat(ByteView data);

/// False when the data ends before its first picture does. PNG, JPEG, GIF and BMP are looked through, since
/// their readers fill up what is missing without a word or cannot say what was wrong; the readers of the others
/// refuse by themselves.
bool holdsWholePicture(ByteView data, PictureFormat format);

/// The same by a plugin's name: the one for XBM fills up what is missing.
bool holdsWholePicture(ByteView data, const QByteArray& pluginFormat);

} // namespace tavrik
