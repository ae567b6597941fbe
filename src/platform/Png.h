#pragma once

#include "platform/Bytes.h"
#include "platform/Result.h"

#include <QImage>
#include <QSize>

#include <optional>

/// PNG at the speed that hundreds of icons ask for. Pure; any thread.
namespace tavrik::png {

/// A picture as PNG, eight bits a channel, in sRGB; alpha is written only when some pixel is not opaque. Quick
/// before small: at most some 15 % larger than what a patient writer makes. Equal pixels give equal bytes.
/// Fails on a null picture and when there is no memory for it.
Result<Bytes> encode(const QImage& picture);

/// The pixels as ARGB32_Premultiplied in sRGB. Plain pictures of eight bits a channel take a quick path, all
/// others (interlaced, with a palette, a colour profile, sixteen bits) Qt's; both give the same pixels. Null
/// when the data is no whole PNG, is damaged, or is larger than what QImageReader's allocation limit allows.
QImage decode(ByteView data);

/// What the header says of a picture, without a look at its pixels.
struct Extent {
    QSize size;           ///< pixels
    int bitsPerPixel = 0; ///< decoded: 64 where a channel has sixteen bits, else 32
};

/// Nothing when the data is no PNG or its header is damaged.
std::optional<Extent> extent(ByteView data);

} // namespace tavrik::png
