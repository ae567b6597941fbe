#pragma once

#include "practice/art/Palette.h"

#include <QPainter>

#include <string_view>
#include <vector>

/// Glyphs as data: each a name and the layers that make it, from back to front, on the canvas of GlyphPath.h.
namespace tavrik::practice {

enum class Stroke {
    fill,  ///< the inside of the path
    solid, ///< the inside and a line around it, so that corners are round
    line,  ///< a line with round ends along the path
};

struct Layer {
    Stroke stroke = Stroke::fill;
    Tone tone = Tone::main;
    const char* path = "";
    double width = 0; ///< of the line, in units of the canvas
    int copies = 1;   ///< drawn so many times, spread over one turn about the middle
};

/// How thick lines are, so that all glyphs look drawn by one hand.
inline constexpr double kBold = 8;
inline constexpr double kMedium = 6;
inline constexpr double kFine = 4;

constexpr Layer fill(Tone tone, const char* path, int copies = 1) {
    return {Stroke::fill, tone, path, 0, copies};
}

constexpr Layer solid(Tone tone, double width, const char* path, int copies = 1) {
    return {Stroke::solid, tone, path, width, copies};
}

constexpr Layer line(Tone tone, double width, const char* path, int copies = 1) {
    return {Stroke::line, tone, path, width, copies};
}

struct Glyph {
    const char* name;
    std::vector<Layer> layers;
};

/// Every glyph, by theme.
const std::vector<Glyph>& allGlyphs();

/// Null when there is none of this name.
const Glyph* findGlyph(std::string_view name);

/// Draws on a painter whose coordinates are the canvas of 100 by 100 units.
void drawGlyph(QPainter& painter, const Glyph& glyph, const Palette& palette);

} // namespace tavrik::practice
