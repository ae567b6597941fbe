#include "remote/UpdateFeed.h"

#include "remote/InterfaceTexts.h"
#include "remote/StrictJson.h"

#include <QJsonArray>

#include <algorithm>
#include <limits>

namespace tavrik {

namespace {

constexpr qsizetype kMostReleases = 100;
constexpr int kLongestNotes = 20'000;              ///< characters
constexpr std::uint64_t kLargestSize = 4ull << 30; ///< bytes

/// "12", "12.3" or "12.3.1". What is not said is `rest`. False for any other text, and for no text at all.
bool readSystem(const QJsonValue& value, int rest, std::optional<SystemVersion>& system) {
    if (value.isUndefined())
        return true;
    const std::string text = value.toString().toStdString();
    const auto version = programVersion(text);
    const auto dots = std::count(text.begin(), text.end(), '.');
    if (!version || dots > 2)
        return false;
    const auto number = [&](std::size_t index) {
        return static_cast<std::ptrdiff_t>(index) <= dots ? static_cast<int>(version->numbers[index]) : rest;
    };
    system = SystemVersion{.major = number(0), .minor = number(1), .patch = number(2)};
    return true;
}

std::optional<Release> release(const QJsonObject& entry) {
    const auto versionText = json::text(entry, "version");
    const auto version = versionText ? programVersion(*versionText) : std::nullopt;
    const auto notes = json::text(entry, "notes");
    const auto size = json::number(entry, "size");
    const auto link = json::text(entry, "link");
    if (!version || !notes || !isPlainText(*notes, kLongestNotes, LineBreaks::yes) || !size ||
        *size > kLargestSize || !link || !isAllowedLink(*link))
        return std::nullopt;
    Release release{.version = *version,
                    .minimumSystem = std::nullopt,
                    .maximumSystem = std::nullopt,
                    .notes = *notes,
                    .size = *size,
                    .link = *link};
    if (!readSystem(entry.value(QLatin1String("minimumSystem")), 0, release.minimumSystem) ||
        !readSystem(entry.value(QLatin1String("maximumSystem")), std::numeric_limits<int>::max(),
                    release.maximumSystem))
        return std::nullopt;
    return release;
}

} // namespace

std::optional<std::vector<Release>> updateFeed(const QJsonObject& payload) {
    const QJsonValue list = payload.value(QLatin1String("releases"));
    const QJsonArray entries = list.toArray();
    if (!list.isArray() || entries.size() > kMostReleases)
        return std::nullopt;
    std::vector<Release> feed;
    for (const QJsonValue entry : entries) {
        auto read = release(entry.toObject());
        if (!read)
            return std::nullopt;
        feed.push_back(std::move(*read));
    }
    return feed;
}

} // namespace tavrik
