#pragma once

#include "platform/Bytes.h"

#include <QImage>

#include <vector>

/// The Mac's icon container. Pure; any thread.
namespace tavrik::icns {

/// One picture of the container. Size in pixels; `scale` is 2 for the "@2x" elements.
struct Representation {
    int width = 0;
    int height = 0;
    int scale = 1;
    std::uint32_t type = 0; ///< four characters, the first in the highest byte: 'ic07'

    bool operator==(const Representation&) const = default;
};

/// What the container offers, in file order, decodable or not; elements that hold no picture are left out.
/// Empty when it is no icon container or its lengths do not add up.
std::vector<Representation> representations(ByteView container);

/// The picture of one element; null when it is damaged, or JPEG 2000 where the system knows none. At most 1024
/// pixels a side are decoded.
QImage decode(ByteView container, const Representation& representation);

/// The widest picture that decodes, the earlier one of two equals; null when none does.
QImage largestImage(ByteView container);

/// A container of PNG elements with the picture at 16, 32, 64, 128, 256, 512 and 1024 pixels, ending with the
/// first size that is no smaller than it: larger ones would only be blurred. A picture that is no square is
/// fitted into the middle of a transparent one. Empty when the picture is null. Takes some 50 ms for 1024
/// pixels.
Bytes encode(const QImage& picture);

} // namespace tavrik::icns
