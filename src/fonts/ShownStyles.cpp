#include "fonts/ShownStyles.h"

#include "fonts/FontReplacer.h"
#include "model/SettingsManager.h"

namespace tavrik {

std::vector<TitleStyle> shownStyles(SettingsManager& settings, const FontReplacer& replacer) {
    std::vector<TitleStyle> styles;
    for (const std::string& name : settings.getUnfinishedFontChange())
        styles.push_back(name.empty() ? TitleStyle() : FontState{name, replacer.isMultiCaseFont(name), {}});
    styles.push_back(settings.getCurrentFontState());
    return styles;
}

} // namespace tavrik
