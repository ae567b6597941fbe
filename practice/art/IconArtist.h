#pragma once

#include <QColor>
#include <QImage>

#include <string>
#include <vector>

/// Draws the icons of the sample applications, so that none is copied from anywhere. Pure; any thread.
namespace tavrik::practice {

enum class Outline { squircle, round, square, free };

/// How one icon looks: an outline filled with a gradient, and a glyph that the artist knows by name.
struct IconStyle {
    Outline outline = Outline::squircle;
    QColor top;
    QColor bottom;
    std::string glyph; ///< "compass", "envelope", ...; glyphNames() has them all
};

/// Every glyph the artist can draw.
const std::vector<std::string>& glyphNames();

/// The icon at this size, ARGB32 premultiplied, transparent outside its outline. 16 to 1024 pixels.
QImage drawIcon(const IconStyle& style, int size);

/// The icon of a bundle that has none: a plain application sheet.
QImage drawGenericIcon(int size);

} // namespace tavrik::practice
