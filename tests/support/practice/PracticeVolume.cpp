#include "support/practice/PracticeVolume.h"

#include "platform/BookmarkPath.h"
#include "platform/PathRules.h"
#include "platform/PosixFileManager.h"
#include "platform/Sqlite.h"
#include "platform/practice/Layout.h"

#include <algorithm>
#include <stdexcept>

namespace tavrik::test {

namespace {

constexpr int kSmallIcons = 32;

template<typename T>
T value(Result<T> result) {
    if (!result)
        throw std::runtime_error(result.error().description);
    return std::move(*result);
}

MacPath recordedPath(ByteView bookmark) {
    const Result<MacPath> path = pathInBookmark(bookmark);
    return path ? *path : MacPath();
}

PinnedTile pinnedTile(const plist::Value& tile) {
    PinnedTile pinned;
    const auto* data = tile.find("tile-data");
    if (!data)
        return pinned;
    if (const auto* bundleID = data->find<std::string>("bundle-identifier"))
        pinned.bundleID = *bundleID;
    if (const auto* label = data->find<std::string>("file-label"))
        pinned.label = *label;
    if (const auto* file = data->find("file-data"))
        if (const auto* url = file->find<std::string>("_CFURLString"))
            pinned.url = *url;
    if (const auto* bookmark = data->find<Bytes>("book"))
        pinned.path = recordedPath(*bookmark);
    return pinned;
}

} // namespace

std::ostream& operator<<(std::ostream& out, const LaunchpadItem& item) {
    return out << item.row << " " << item.title << " (" << item.bundleID << ") in " << item.parent << " at "
               << item.ordering << ", flags " << (item.flags ? std::to_string(*item.flags) : "NULL") << ", "
               << item.path.string();
}

std::ostream& operator<<(std::ostream& out, const PinnedTile& tile) {
    return out << tile.label << " (" << tile.bundleID << "), " << tile.url << ", " << tile.path.string();
}

PracticeVolume::PracticeVolume(const practice::Programs& programs) : m_root(m_folder.path() / "Mac") {
    value(practice::furnish(m_root, programs, {.largestIcon = kSmallIcons}));
}

HostPath PracticeVolume::launchpadDatabase() const {
    return host(launchpadDatabasePath(practice::kTemporaryFolder));
}

std::vector<LaunchpadItem> PracticeVolume::launchpadItems() const {
    // Only a connection that may write clears the journal away when it closes.
    auto connection = sqlite::Connection::open(launchpadDatabase(), sqlite::OpenMode::readWrite);
    if (!connection)
        throw std::runtime_error("The Launchpad database cannot be opened.");
    auto select = connection->prepare("SELECT i.rowid, i.type, i.flags, i.parent_id, i.ordering, "
                                      "ifnull(a.title, g.title), a.bundleid, a.bookmark FROM items i "
                                      "LEFT JOIN apps a ON a.item_id = i.rowid "
                                      "LEFT JOIN groups g ON g.item_id = i.rowid ORDER BY i.rowid");
    if (!select)
        throw std::runtime_error(connection->lastError());
    std::vector<LaunchpadItem> items;
    while (select.step() == sqlite::Step::row) {
        LaunchpadItem item;
        item.row = select.int64(0).value_or(0);
        item.type = select.int32(1).value_or(0);
        item.flags = select.int32(2);
        item.parent = select.int64(3).value_or(0);
        item.ordering = select.int32(4).value_or(-1);
        item.title = select.text(5).value_or("");
        item.bundleID = select.text(6).value_or("");
        item.path = recordedPath(select.blob(7).value_or(Bytes()));
        items.push_back(std::move(item));
    }
    return items;
}

std::vector<LaunchpadItem> PracticeVolume::appRows(std::string_view bundleID) const {
    std::vector<LaunchpadItem> rows = launchpadItems();
    std::erase_if(rows, [&](const LaunchpadItem& item) { return item.bundleID != bundleID; });
    return rows;
}

plist::Value PracticeVolume::dockPreferences() const {
    return propertyList(dockPreferencesPath(practice::kHome));
}

std::vector<PinnedTile> PracticeVolume::pinnedTiles() const {
    const plist::Value preferences = dockPreferences();
    const auto* tiles = preferences.find<plist::Array>("persistent-apps");
    std::vector<PinnedTile> pinned;
    if (tiles)
        std::ranges::transform(*tiles, std::back_inserter(pinned), pinnedTile);
    return pinned;
}

plist::Value PracticeVolume::propertyList(const MacPath& file) const {
    return value(plist::parse(value(PosixFileManager(m_root).read(file))));
}

} // namespace tavrik::test
