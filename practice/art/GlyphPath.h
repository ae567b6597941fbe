#pragma once

#include <QPainterPath>

#include <optional>
#include <string_view>

namespace tavrik::practice {

/// Reads the artist's little path language, on a canvas of 100 by 100 units with y downwards. Tokens are parted
/// by blanks, all coordinates are absolute, angles are degrees, anticlockwise from three o'clock:
///
///   M x y            start a figure            R x y w h r     rounded rectangle
///   L x y, H x, V y  line                      O cx cy r       circle
///   C six numbers    cubic curve               E cx cy rx ry   ellipse
///   Q four numbers   quadratic curve           A cx cy r a s   arc of s degrees from a, a figure of its own
///   Z                close the figure          a cx cy r a s   the same, joined to the current point
///   T degrees        first of all: turn everything clockwise about the middle
///   X                first of all: overlapping figures cut holes
///
/// Nothing when the text is not of this language.
std::optional<QPainterPath> parseGlyphPath(std::string_view text);

} // namespace tavrik::practice
