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

} // namespace

std::string bundleName(const MacPath& bundle) {
    return bundle.extension() == "app" ? bundle.stem() : bundle.name();
}

std::string plainLabel(const std::string& label, const std::string& url, const FontReplacer& replacer) {
    const MacPath bundle = dock::pathOf(url);
    if (isWrapperPath(bundle) && !bundle.stem().empty())
        return bundle.stem();
    std::string plain = replacer.convertToNormal(label);
    if (label == plain || !hasLostCapitals(label, plain, replacer))
        return plain;
    std::string fileName = bundleName(bundle);
    return isSameIgnoringCase(fileName, plain) ? fileName : plain;
}

bool hasLostCapitals(std::string_view title, std::string_view plain, const FontReplacer& replacer) {
    // Styles know the letters of ASCII only, and where one writes both cases alike, plain text has the small
    // one.
    const auto isCapital = [](char letter) { return letter >= 'A' && letter <= 'Z'; };
    if (std::ranges::any_of(plain, isCapital))
        return false;
    std::string raised(plain);
    for (char& letter : raised)
        letter = letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    return raised != plain &&
           std::ranges::any_of(replacer.allFontMaps(), [&](const FontReplacer::FontMap& font) {
               return replacer.convert(raised, font.name) == title &&
                      replacer.convert(plain, font.name) == title;
           });
}

std::string plainTitle(const std::string& title, const std::optional<MacPath>& bundle, const MacPath& gone,
                       const FontReplacer& replacer) {
    if (bundle && !bundle->name().empty())
        return bundleName(*bundle);
    std::string plain = replacer.convertToNormal(title);
    std::string fileName = bundleName(gone);
    return isSameIgnoringCase(fileName, plain) ? fileName : plain;
}

bool isSameIgnoringCase(std::string_view one, std::string_view other) {
    return one == other || folded(one) == folded(other);
}

} // namespace tavrik
