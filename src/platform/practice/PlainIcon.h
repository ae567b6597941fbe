#pragma once

#include <QImage>

namespace tavrik::practice {

/// What an item without an icon of its own shows.
enum class PlainIcon { document, folder, application };

/// A plainly drawn picture of 512 pixels a side, ARGB32 premultiplied. Pure; any thread.
QImage drawPlainIcon(PlainIcon kind);

} // namespace tavrik::practice
