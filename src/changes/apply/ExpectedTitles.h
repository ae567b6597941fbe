#pragma once

#include "changes/apply/ApplyStores.h"

#include <string>

namespace tavrik {

class FontReplacer;

/// Writes a style into all titles and labels, or plain text when it is empty, as the fonts' own passes would.
/// Pure.
void writeTitles(ApplyStores& stores, const std::string& style, const FontReplacer& fonts);

} // namespace tavrik
