#include "fonts/PlainNames.h"

#include "fonts/FontReplacer.h"
#include "platform/PathRules.h"
#include "system/DockTiles.h"

#include <QString>

#include <algorithm>

namespace tavrik {

namespace {

QString folded(std::string_view name) {
    const QString text = QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
    return text.normalized(QString::NormalizationForm_C).toLower();
}

/// Whether the label is written in a style that gives a capital and its small letter one shape.
bool hasLostCapitals(const std::string& label, const std::string& plain, const FontReplacer& replacer) {
    if (label == plain)
        return false;
    std::string lowered = plain;
    std::string raised = plain;
    // Styles know the letters of ASCII only.
    for (char& letter : lowered)
        letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    for (char& letter : raised)
        letter = letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    return std::ranges::any_of(replacer.allFontMaps(), [&](const FontReplacer::FontMap& font) {
        return replacer.convert(lowered, font.name) == label && replacer.convert(raised, font.name) == label;
    });
}

} // namespace

std::string bundleName(const MacPath& bundle) {
    return bundle.extension() == "app" ? bundle.stem() : bundle.name();
}

std::string plainLabel(const std::string& label, const std::string& url, const FontReplacer& replacer) {
    const MacPath bundle = dock::pathOf(url);
    if (isWrapperPath(bundle) && !bundle.stem().empty())
        return bundle.stem();
    std::string plain = replacer.convertToNormal(label);
    if (!hasLostCapitals(label, plain, replacer))
        return plain;
    std::string fileName = bundleName(bundle);
    return isSameIgnoringCase(fileName, plain) ? fileName : plain;
}

bool isSameIgnoringCase(std::string_view one, std::string_view other) {
    return one == other || folded(one) == folded(other);
}

} // namespace tavrik
