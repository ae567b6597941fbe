#pragma once

#include "platform/Bytes.h"

#include <QImage>

#include <functional>
#include <vector>

namespace tavrik::practice {

/// Draws one picture at this size in pixels. Called from several threads at once.
using IconPainter = std::function<QImage(int size)>;

/// The icon files of these painters, in their order: PNG elements from 16 pixels up to the largest size, each
/// drawn at its own size. Uses every processor. An empty one where a picture could not be encoded.
std::vector<Bytes> buildIcons(const std::vector<IconPainter>& painters, int largest);

} // namespace tavrik::practice
