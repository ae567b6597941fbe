#include "system/DockTiles.h"

#include <QByteArray>

#include <cmath>
#include <cstdint>
#include <limits>

namespace tavrik::dock {

namespace {

constexpr const char* kModified = "file-mod-date";
constexpr const char* kLabel = "file-label";

template<typename T>
const T* entry(const plist::Dictionary& data, std::string_view key) {
    const auto found = data.find(key);
    return found == data.end() ? nullptr : found->second.as<T>();
}

/// The tiles of one part of the Dock, in its order.
std::vector<Tile> tilesOf(plist::Value& preferences, std::string_view part) {
    std::vector<Tile> tiles;
    plist::Value* apps = preferences.find(part);
    if (!apps || !apps->as<plist::Array>())
        return tiles;
    for (plist::Value& app : *apps->as<plist::Array>()) {
        plist::Value* data = app.find("tile-data");
        if (!data || !data->as<plist::Dictionary>())
            continue;
        tiles.emplace_back(*data->as<plist::Dictionary>());
    }
    return tiles;
}

/// The tiles of "persistent-apps" that are wanted, in Dock order.
template<typename Predicate>
std::vector<Tile> tilesThat(plist::Value& preferences, Predicate isWanted) {
    std::vector<Tile> tiles = tilesOf(preferences, "persistent-apps");
    std::erase_if(tiles, [&](const Tile& tile) { return !isWanted(tile); });
    return tiles;
}

} // namespace

const std::string* Tile::bundleID() const {
    return entry<std::string>(*m_data, "bundle-identifier");
}

const Bytes* Tile::bookmark() const {
    return entry<Bytes>(*m_data, "book");
}

const plist::Value* Tile::modified() const {
    const auto found = m_data->find(kModified);
    return found == m_data->end() ? nullptr : &found->second;
}

const std::string* Tile::label() const {
    return entry<std::string>(*m_data, kLabel);
}

const std::string* Tile::url() const {
    const auto* fileData = entry<plist::Dictionary>(*m_data, "file-data");
    return fileData ? entry<std::string>(*fileData, "_CFURLString") : nullptr;
}

void Tile::setBookmark(const Bytes& bookmark) {
    m_data->insert_or_assign("book", bookmark);
}

void Tile::setURL(std::string_view url) {
    plist::Value& fileData = (*m_data)["file-data"];
    if (!fileData.as<plist::Dictionary>())
        fileData = plist::Dictionary{};
    fileData.as<plist::Dictionary>()->insert_or_assign("_CFURLString", url);
}

void Tile::setModified(Date date) {
    const plist::Value recorded = recordedDate(date);
    setModified(&recorded);
}

void Tile::setModified(const plist::Value* recorded) {
    if (recorded)
        m_data->insert_or_assign(kModified, *recorded);
    else
        m_data->erase(kModified);
}

void Tile::setLabel(std::string_view label) {
    m_data->insert_or_assign(kLabel, plist::Value(label));
}

plist::Value recordedDate(Date date) {
    return static_cast<std::int64_t>(std::floor(date.sinceReference));
}

MacPath pathOf(std::string_view url) {
    constexpr std::string_view kScheme = "file://";
    if (!url.starts_with(kScheme))
        return MacPath(url);
    const std::string_view encoded = url.substr(kScheme.size());
    const QByteArray bytes(encoded.data(), static_cast<qsizetype>(encoded.size()));
    return MacPath(QByteArray::fromPercentEncoding(bytes).toStdString());
}

std::vector<Tile> allTiles(plist::Value& preferences) {
    return tilesOf(preferences, "persistent-apps");
}

std::vector<Tile> recentTiles(plist::Value& preferences) {
    return tilesOf(preferences, "recent-apps");
}

std::vector<Tile> otherTiles(plist::Value& preferences) {
    return tilesOf(preferences, "persistent-others");
}

std::vector<Tile> appTiles(plist::Value& preferences) {
    return tilesThat(preferences, [](const Tile& tile) { return tile.bundleID() != nullptr; });
}

std::vector<Tile> applicationTiles(plist::Value& preferences) {
    return tilesThat(preferences,
                     [](const Tile& tile) { return tile.bundleID() || (tile.url() && tile.label()); });
}

std::vector<Tile> labelledTiles(plist::Value& preferences) {
    return tilesThat(preferences, [](const Tile& tile) { return tile.url() && tile.label(); });
}

Tile findTile(plist::Value& preferences, std::string_view bundleID) {
    for (const Tile& tile : appTiles(preferences)) {
        if (*tile.bundleID() == bundleID)
            return tile;
    }
    return {};
}

void raiseModCount(plist::Value& preferences) {
    plist::Value* value = preferences.find("mod-count");
    if (!value)
        return;
    if (auto* count = value->as<std::int64_t>(); count && *count < std::numeric_limits<std::int64_t>::max())
        ++*count;
}

} // namespace tavrik::dock
