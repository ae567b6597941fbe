#include "ui/models/PreviewDock.h"

#include "platform/Bookmarks.h"
#include "platform/FileManager.h"
#include "platform/Mac.h"
#include "system/DockTiles.h"
#include "ui/models/PreviewChanges.h"

#include <QCoreApplication>

#include <iterator>
#include <utility>

namespace tavrik {

namespace {

const MacPath kFinder("/System/Library/CoreServices/Finder.app");

PreviewItem steady(std::string key, PreviewItem::Kind kind, const PreviewFace& face) {
    return {.key = std::move(key), .kind = kind, .now = face, .after = face};
}

PreviewItem line(std::string key) {
    return steady(std::move(key), PreviewItem::Kind::line, {});
}

PreviewFace faceOf(const dock::Tile& tile, const Mac& mac) {
    MacPath path;
    if (const Bytes* const bookmark = tile.bookmark()) {
        if (auto target = mac.bookmarks.resolve(*bookmark))
            path = std::move(*target);
    }
    if (path.empty() && tile.url())
        path = dock::pathOf(*tile.url());
    const bool leadsSomewhere = !path.empty() && mac.files.exists(path);
    return {tile.label() && !tile.label()->empty() ? *tile.label() : path.stem(),
            {leadsSomewhere ? PreviewIcon::Kind::shown : PreviewIcon::Kind::none, path}};
}

PreviewItem itemOf(const dock::Tile& tile, const Mac& mac) {
    if (!tile.bundleID() && !tile.url())
        return steady({}, PreviewItem::Kind::gap, {});
    return steady(tile.bundleID() ? *tile.bundleID() : *tile.url(), PreviewItem::Kind::app, faceOf(tile, mac));
}

void add(std::vector<PreviewItem>& to, std::vector<PreviewItem> section) {
    to.insert(to.end(), std::move_iterator(section.begin()), std::move_iterator(section.end()));
}

std::vector<PreviewItem> itemsOf(const std::vector<dock::Tile>& tiles, const Mac& mac) {
    std::vector<PreviewItem> items;
    for (const dock::Tile& tile : tiles)
        items.push_back(itemOf(tile, mac));
    return items;
}

std::vector<PreviewItem> keptApplications(plist::Value& preferences, const Mac& mac,
                                          const PreviewChanges& changes) {
    std::vector<PreviewItem> items = itemsOf(dock::allTiles(preferences), mac);
    for (PreviewItem& item : items) {
        if (item.kind == PreviewItem::Kind::app)
            item.after = changes.tileAfter(item.key, item.now);
    }
    return items;
}

PreviewItem finder(const Mac& mac) {
    const PreviewIcon icon = mac.files.exists(kFinder) ? PreviewIcon{PreviewIcon::Kind::shown, kFinder}
                                                       : PreviewIcon{PreviewIcon::Kind::finder, {}};
    return steady("finder", PreviewItem::Kind::app,
                  {QCoreApplication::translate("tavrik::PreviewDock", "Finder").toStdString(), icon});
}

PreviewItem trash(const plist::Value& preferences) {
    const bool* const isFull = preferences.find<bool>("trash-full");
    return steady("trash", PreviewItem::Kind::app,
                  {QCoreApplication::translate("tavrik::PreviewDock", "Trash").toStdString(),
                   {isFull && *isFull ? PreviewIcon::Kind::fullTrash : PreviewIcon::Kind::trash, {}}});
}

} // namespace

std::vector<PreviewItem> readPreviewDock(plist::Value& preferences, const Mac& mac,
                                         const PreviewChanges& changes) {
    std::vector<PreviewItem> items{finder(mac)};
    add(items, keptApplications(preferences, mac, changes));
    const bool* const showsRecents = preferences.find<bool>("show-recents");
    if (auto recents = itemsOf(dock::recentTiles(preferences), mac);
        !recents.empty() && (!showsRecents || *showsRecents)) {
        items.push_back(line("recents"));
        add(items, std::move(recents));
    }
    items.push_back(line("others"));
    add(items, itemsOf(dock::otherTiles(preferences), mac));
    items.push_back(trash(preferences));
    return items;
}

} // namespace tavrik
