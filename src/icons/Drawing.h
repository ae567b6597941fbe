#pragma once

#include "platform/Bytes.h"

#include <QImage>

#include <optional>

/// Drawings in SVG. Pure; any thread.
namespace tavrik {

/// Whether a drawing takes in anything from outside itself: other files, style sheets, or an embedded picture
/// that is not PNG or JPEG and so might be a drawing that does. Such a one must not be rendered, since the
/// renderer opens whatever file is named.
bool refersToOtherFiles(ByteView drawing);

/// The drawing in a gzip file; nothing when that is damaged or holds more than 64 MB.
std::optional<Bytes> decompressed(ByteView file);

/// The drawing with its longer side at `side` pixels, its proportions kept. Null when it cannot be read.
QImage render(ByteView drawing, int side);

} // namespace tavrik
