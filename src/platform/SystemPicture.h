#pragma once

#include "platform/Bytes.h"

#include <QImage>

#include <optional>
#include <span>
#include <string_view>

/// Pictures of the kinds that the system itself decodes, for want of a reader that is there everywhere: JPEG
/// 2000 and HEIC on a Mac, none elsewhere. Pure; any thread.
namespace tavrik {

/// The size in pixels that a picture's header states; nothing when the system does not know its kind, or when
/// the header is damaged. To be held against a limit before the picture is decoded.
std::optional<QSize> sizeOfSystemPicture(ByteView data);

/// The first picture, its recorded orientation honoured, in the form of `standardised`. Null when it is
/// damaged, or of no kind that the system knows.
QImage decodedBySystem(ByteView data);

/// How the names of such files end, behind the full stop, in small letters.
std::span<const std::string_view> systemPictureExtensions();

} // namespace tavrik
