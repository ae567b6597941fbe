#pragma once

#include "platform/macos/CFOwned.h"

#include <QImage>

#include <CoreGraphics/CoreGraphics.h>

#include <functional>

/// Pictures between Qt and the Mac. Both sides have eight bits a channel, premultiplied, in sRGB. Pure; any
/// thread.
namespace tavrik::macos {

/// Empty when the picture is null or there is no memory for it. The pixels are copied.
CFOwned<CGImageRef> toCGImage(const QImage& picture);

/// What `draw` draws on a transparent ground of so many pixels, whose origin is at the lower left. Null when
/// there is no memory for it.
QImage drawn(QSize size, const std::function<void(CGContextRef)>& draw);

} // namespace tavrik::macos
