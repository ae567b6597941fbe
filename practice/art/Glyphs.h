#pragma once

#include "practice/art/Glyph.h"

#include <vector>

/// The tables of glyphs, one function and one file for each theme.
namespace tavrik::practice {

std::vector<Glyph> travelGlyphs();
std::vector<Glyph> talkGlyphs();
std::vector<Glyph> mediaGlyphs();
std::vector<Glyph> deskGlyphs();
std::vector<Glyph> machineGlyphs();
std::vector<Glyph> natureGlyphs();
std::vector<Glyph> leisureGlyphs();
std::vector<Glyph> symbolGlyphs();

} // namespace tavrik::practice
