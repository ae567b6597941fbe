#pragma once

#include "fonts/FolderNames.h"

#include <vector>

namespace tavrik {

class FontReplacer;
class SettingsManager;

/// The styles that the folders' titles may show now, the oldest first: the recorded one, which is the only one
/// unless an earlier change did not end.
std::vector<TitleStyle> shownStyles(SettingsManager& settings, const FontReplacer& replacer);

} // namespace tavrik
