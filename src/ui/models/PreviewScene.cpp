#include "ui/models/PreviewScene.h"

#include "changes/apply/ApplyServices.h"
#include "platform/Bookmarks.h"
#include "platform/Mac.h"
#include "system/DatabaseManager.h"
#include "system/DockManager.h"
#include "system/LaunchpadLayout.h"
#include "ui/models/LaunchpadCopy.h"
#include "ui/models/PreviewChanges.h"
#include "ui/models/PreviewDock.h"

#include <QString>

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <utility>

namespace tavrik {

namespace {

PreviewIcon shownIcon(const MacPath& path) {
    return {path.empty() ? PreviewIcon::Kind::none : PreviewIcon::Kind::shown, path};
}

/// Where the bookmarks of a copied database lead, by row.
std::map<RowID, MacPath> resolvedPaths(sqlite::Connection& database, const Bookmarks& bookmarks) {
    std::map<RowID, MacPath> paths;
    auto rows = database.prepare("SELECT item_id, bookmark FROM apps WHERE bookmark IS NOT NULL");
    while (rows && rows.step() == sqlite::Step::row) {
        if (const auto path = bookmarks.resolve(*rows.blobView(1)))
            paths.emplace(RowID{rows.int64(0).value_or(0)}, *path);
    }
    return paths;
}

/// Turns the rows of Launchpad into what a person sees there.
class Pages {
public:
    Pages(const PreviewChanges& changes, std::map<RowID, MacPath> paths)
        : m_changes(changes),
          m_paths(std::move(paths)) {}

    std::vector<PreviewItem> page(const std::vector<LaunchpadLayout::Item>& rows) {
        std::vector<PreviewItem> items;
        for (const LaunchpadLayout::Item& row : rows) {
            if (const auto* const folder = std::get_if<LaunchpadLayout::Folder>(&row))
                items.push_back(item(*folder));
            else
                add(std::get<LaunchpadLayout::Application>(row), items);
        }
        return items;
    }

private:
    PreviewItem item(const LaunchpadLayout::Folder& folder) {
        const std::string key = std::to_string(static_cast<std::int64_t>(folder.rowID));
        PreviewItem item{.key = key,
                         .kind = PreviewItem::Kind::folder,
                         .now = {folder.title, {}},
                         .after = {m_changes.folderTitleAfter(key, folder.title), {}}};
        for (const auto& page : folder.pages) {
            for (const LaunchpadLayout::Application& app : page)
                add(app, item.members);
        }
        return item;
    }

    /// Of the rows of one application Launchpad shows the first, and of hidden ones those of the system's own.
    void add(const LaunchpadLayout::Application& app, std::vector<PreviewItem>& to) {
        const QString bundleID = QString::fromStdString(app.bundleID).trimmed();
        const QString comparable = bundleID.toLower();
        if (app.isHidden && !comparable.startsWith(QLatin1String("com.apple.")))
            return;
        if (!comparable.isEmpty() && !m_seen.insert(comparable).second)
            return;
        const auto path = m_paths.find(app.rowID);
        const PreviewFace now{app.title, shownIcon(path == m_paths.end() ? MacPath() : path->second)};
        to.push_back({.key = std::to_string(static_cast<std::int64_t>(app.rowID)),
                      .kind = PreviewItem::Kind::app,
                      .now = now,
                      .after = m_changes.appAfter(bundleID.toStdString(), now)});
    }

    const PreviewChanges& m_changes;
    const std::map<RowID, MacPath> m_paths;
    std::set<QString> m_seen;
};

} // namespace

int PreviewItem::changeCount() const {
    int count = now == after ? 0 : 1;
    for (const PreviewItem& member : members)
        count += member.changeCount();
    return count;
}

bool PreviewItem::changesIcon() const {
    return now.icon != after.icon || std::ranges::any_of(members, &PreviewItem::changesIcon);
}

Result<PreviewScene> readPreview(const ApplyServices& with, const StagedChanges& staged) {
    const auto changes = PreviewChanges::read(with, staged);
    if (!changes)
        return changes.error();
    auto database = openLaunchpadCopy(with.mac, with.database);
    if (!database)
        return database.error();
    const auto layout = readLaunchpadLayout(*database);
    if (!layout)
        return Error{"The Launchpad database cannot be read: " + database->lastError() + "."};
    auto preferences = with.dock.readDockPlist();
    if (!preferences)
        return Error{"The Dock's preferences cannot be read: " + with.dock.dockPlistPath().string() + "."};

    PreviewScene scene;
    Pages pages(*changes, resolvedPaths(*database, with.mac.bookmarks));
    for (const auto& rows : layout->pages) {
        if (auto page = pages.page(rows); !page.empty())
            scene.pages.push_back(std::move(page));
    }
    scene.tiles = readPreviewDock(*preferences, with.mac, *changes);
    return scene;
}

} // namespace tavrik
