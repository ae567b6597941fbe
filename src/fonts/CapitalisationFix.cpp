#include "fonts/CapitalisationFix.h"

#include <QString>
#include <QStringList>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace tavrik {

namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 13> kKnownNames{{
    {"ios", "iOS"},
    {"macos", "macOS"},
    {"ipados", "iPadOS"},
    {"watchos", "watchOS"},
    {"tvos", "tvOS"},
    {"iphone", "iPhone"},
    {"ipad", "iPad"},
    {"imac", "iMac"},
    {"airpods", "AirPods"},
    {"airtag", "AirTag"},
    {"vpn", "VPN"},
    {"vpn's", "VPN's"},
    {"vpns", "VPNs"},
}};

constexpr int kLongestAbbreviation = 3; ///< user-perceived characters

/// Where each user-perceived character ends.
std::vector<qsizetype> characterEnds(const QString& word) {
    std::vector<qsizetype> ends;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, word);
    for (qsizetype end = finder.toNextBoundary(); end > 0; end = finder.toNextBoundary())
        ends.push_back(end);
    return ends;
}

QString fixedWord(const QString& word) {
    const auto ends = characterEnds(word);
    if (ends.empty())
        return word;
    const bool isAllCapitals = word == word.toUpper() && word != word.toLower();
    if (isAllCapitals && ends.size() <= kLongestAbbreviation)
        return word;
    return word.left(ends.front()).toUpper() + word.mid(ends.front()).toLower();
}

} // namespace

std::string withFixedCapitals(std::string_view plain) {
    const QString text = QString::fromUtf8(plain.data(), static_cast<qsizetype>(plain.size()));
    const std::string lowered = text.toLower().toStdString();
    const auto known = std::ranges::find(kKnownNames, lowered, [](const auto& names) { return names.first; });
    if (known != kKnownNames.end())
        return std::string(known->second);

    QStringList words = text.split(QLatin1Char(' '));
    for (QString& word : words)
        word = fixedWord(word);
    return words.join(QLatin1Char(' ')).toStdString();
}

} // namespace tavrik
