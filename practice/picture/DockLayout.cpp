#include "practice/picture/DockLayout.h"

#include "platform/PropertyList.h"
#include "platform/practice/PracticeBookmarks.h"
#include "platform/practice/PropertyListFile.h"

#include <QByteArray>

#include <optional>
#include <string_view>

namespace tavrik::practice {

namespace {

/// The path of a tile's URL; scripts write plain paths too. Nothing for what is no file's.
std::optional<MacPath> pathOfURL(const std::string& url) {
    constexpr std::string_view kScheme = "file://";
    if (url.starts_with('/'))
        return MacPath(url);
    if (!url.starts_with(kScheme))
        return std::nullopt;
    const auto slash = url.find('/', kScheme.size()); // past a host, which is empty or "localhost"
    if (slash == std::string::npos)
        return std::nullopt;
    const QByteArray decoded = QByteArray::fromPercentEncoding(QByteArray::fromStdString(url.substr(slash)));
    return decoded.contains('\0') ? std::nullopt : std::optional(MacPath(decoded.toStdString()));
}

std::string textOf(const plist::Value& dictionary, std::string_view key) {
    const auto* text = dictionary.find<std::string>(key);
    return text ? *text : std::string();
}

MacPath resolve(const FileManager& files, const plist::Value& data) {
    if (const auto* book = data.find<Bytes>("book")) {
        if (auto path = PracticeBookmarks(files).resolve(*book))
            return *path;
    }
    if (const auto* file = data.find("file-data")) {
        const auto path = pathOfURL(textOf(*file, "_CFURLString"));
        if (path && files.exists(*path))
            return *path;
    }
    return {};
}

TileKind kindOf(const FileManager& files, const plist::Value& tile, const DockTile& read) {
    const std::string type = textOf(tile, "tile-type");
    if (type == "spacer-tile")
        return TileKind::spacer;
    if (type == "small-spacer-tile")
        return TileKind::smallSpacer;
    if (type == "directory-tile")
        return TileKind::folder;
    if (!read.bundleID.empty() || read.path.empty() || read.path.extension() == "app")
        return TileKind::app;
    const auto attributes = files.attributes(read.path);
    return attributes && attributes->type == FileType::folder ? TileKind::folder : TileKind::file;
}

std::vector<DockTile> readTiles(const FileManager& files, const plist::Value& preferences,
                                std::string_view section) {
    std::vector<DockTile> tiles;
    const auto* entries = preferences.find<plist::Array>(section);
    if (!entries)
        return tiles;
    for (const plist::Value& entry : *entries) {
        const plist::Value* data = entry.find("tile-data");
        if (!data)
            continue;
        DockTile tile;
        tile.label = textOf(*data, "file-label");
        tile.bundleID = textOf(*data, "bundle-identifier");
        tile.path = resolve(files, *data);
        tile.kind = kindOf(files, entry, tile);
        if (tile.label.empty())
            tile.label = tile.path.stem();
        tiles.push_back(std::move(tile));
    }
    return tiles;
}

} // namespace

Result<DockLayout> readDockLayout(const FileManager& files, const MacPath& preferences) {
    const auto list = readPropertyList(files, preferences);
    if (!list)
        return list.error();
    if (!*list)
        return Error{"The Dock has no preferences at " + preferences.string() + "."};
    DockLayout layout{
        readTiles(files, **list, "persistent-apps"), {}, readTiles(files, **list, "persistent-others")};
    const bool* showsRecents = (*list)->find<bool>("show-recents");
    if (!showsRecents || *showsRecents)
        layout.recents = readTiles(files, **list, "recent-apps");
    return layout;
}

} // namespace tavrik::practice
