#pragma once

#include <QImage>

namespace tavrik {

/// The picture with eight bits a channel, premultiplied, in sRGB: the form in which all code passes pictures
/// on. One that names no colours of its own is taken to be in sRGB. Null when there is no memory for it. Pure;
/// any thread.
QImage standardised(const QImage& picture);

/// Whether the colours are those of sRGB, named or not.
bool isSRGB(const QImage& picture);

} // namespace tavrik
