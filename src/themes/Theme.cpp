#include "themes/Theme.h"

#include "platform/PropertyList.h"
#include "platform/Random.h"
#include "platform/Utf8.h"
#include "themes/ThemeError.h"

#include <QString>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace tavrik {

namespace {

constexpr std::string_view kIDAlphabet = "abcdefghijklmnopqrstuvwxyz0123456789";
constexpr std::size_t kIDLength = 16;

/// A character may be many bytes, and marks can be heaped on one without end: no name is longer.
constexpr std::size_t kMostNameBytes = 4096;

constexpr plist::Limits kRecordLimits{.bytes = kLargestThemeRecord, .depth = 16, .values = 1000};

bool isForbidden(char32_t point) {
    constexpr std::u32string_view kForbidden = U"/\\:*?\"<>|";
    return point < 0x20 || (point >= 0x7F && point <= 0x9F) || kForbidden.find(point) != kForbidden.npos;
}

/// As a person counts them.
std::size_t characterCount(std::string_view text) {
    // A Latin line goes before, lest a mark inside decide which script's rules Qt follows from the start.
    const QString line = QStringLiteral("b\n");
    const QString units = line + QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, units);
    finder.setPosition(line.size());
    std::size_t count = 0;
    while (finder.toNextBoundary() >= 0)
        ++count;
    return count;
}

} // namespace

std::string trimmedThemeName(std::string_view name) {
    std::size_t first = std::string_view::npos;
    std::size_t end = 0;
    for (std::string_view rest = name; !rest.empty();) {
        const std::size_t at = name.size() - rest.size();
        const auto point = takeCodePoint(rest);
        if (!point)
            rest.remove_prefix(1); // stays, so that the name is refused for it
        if (point && QChar::isSpace(*point))
            continue;
        first = std::min(first, at);
        end = name.size() - rest.size();
    }
    return end == 0 ? std::string() : std::string(name.substr(first, end - first));
}

bool isValidThemeName(std::string_view trimmed) {
    if (trimmed.empty() || trimmed.size() > kMostNameBytes || trimmed.starts_with('.') ||
        trimmed.ends_with('.'))
        return false;
    for (std::string_view rest = trimmed; !rest.empty();) {
        const auto point = takeCodePoint(rest);
        if (!point || isForbidden(*point))
            return false;
    }
    return characterCount(trimmed) <= kLongestThemeName;
}

bool isThemeID(std::string_view text) {
    return text.size() == kIDLength && text.find_first_not_of(kIDAlphabet) == text.npos;
}

std::string drawThemeID(Random& random) {
    // Bytes above the largest multiple of 36 are drawn again: they would favour the first letters.
    constexpr std::size_t kFair = 256 / kIDAlphabet.size() * kIDAlphabet.size();
    std::string id;
    while (id.size() < kIDLength) {
        for (const std::uint8_t byte : random.bytes(kIDLength - id.size())) {
            if (byte < kFair)
                id += kIDAlphabet[byte % kIDAlphabet.size()];
        }
    }
    return id;
}

Result<Bytes> encodeTheme(const Theme& theme) {
    return plist::serialize(
        plist::Dictionary{{"themeID", theme.themeID}, {"name", theme.name}, {"createdDate", theme.createdDate}},
        plist::Format::binary);
}

Result<Theme> decodeTheme(ByteView record) {
    const auto root = plist::parse(record, kRecordLimits);
    if (!root)
        return errorOf(ThemeError::invalidThemeFormat, root.error().description);
    const auto* id = root->find<std::string>("themeID");
    const auto* name = root->find<std::string>("name");
    const auto* created = root->find<Date>("createdDate");
    if (!id || !name || !created)
        return errorOf(ThemeError::invalidThemeFormat, "its record lacks its id, its name or its date");
    if (!isThemeID(*id))
        return errorOf(ThemeError::invalidThemeFormat, "its id is not one of a theme");
    if (!std::isfinite(created->sinceReference))
        return errorOf(ThemeError::invalidThemeFormat, "its date is none");
    Theme theme{.themeID = *id, .name = trimmedThemeName(*name), .createdDate = *created};
    if (!isValidThemeName(theme.name))
        return errorOf(ThemeError::invalidThemeName);
    return theme;
}

} // namespace tavrik
