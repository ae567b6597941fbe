#include "cli/Json.h"

#include <QJsonDocument>
#include <QUrl>

namespace tavrik {

namespace {

QString key(const std::string& value) {
    return QString::fromStdString(value);
}

QJsonValue text(const std::string& value) {
    return QString::fromStdString(value);
}

QJsonValue number(RowID row) {
    return static_cast<qint64>(row);
}

QJsonArray paths(const std::vector<MacPath>& list) {
    QJsonArray array;
    for (const MacPath& path : list)
        array.append(text(path.string()));
    return array;
}

QJsonArray numbers(const std::set<int>& list) {
    QJsonArray array;
    for (const int entry : list)
        array.append(entry);
    return array;
}

template<typename Texts>
QJsonArray texts(const Texts& list) {
    QJsonArray array;
    for (const std::string& entry : list)
        array.append(text(entry));
    return array;
}

QJsonObject object(const BackupListItem& backup) {
    return {
        {QLatin1String("id"), text(backup.id)},
        {QLatin1String("url"), QUrl::fromLocalFile(key(backup.url.string())).toString(QUrl::FullyEncoded)},
        {QLatin1String("date"), text(isoText(backup.date))},
        {QLatin1String("sizeInKB"), static_cast<qint64>(backup.sizeInKB)},
    };
}

QJsonArray objects(const std::vector<LayoutSummary::Tile>& tiles) {
    QJsonArray array;
    for (const LayoutSummary::Tile& tile : tiles) {
        array.append(QJsonObject{
            {QLatin1String("label"), text(tile.label)},
            {QLatin1String("bundleID"), text(tile.bundleID)},
        });
    }
    return array;
}

QJsonObject object(const LaunchpadLayout::Application& app) {
    return {
        {QLatin1String("rowID"), number(app.rowID)},
        {QLatin1String("title"), text(app.title)},
        {QLatin1String("bundleID"), text(app.bundleID)},
        {QLatin1String("isHidden"), app.isHidden},
    };
}

/// Pages of applications, or of applications and folders.
template<typename Item>
QJsonArray pages(const std::vector<std::vector<Item>>& list);

QJsonObject object(const LaunchpadLayout::Folder& folder) {
    return {
        {QLatin1String("rowID"), number(folder.rowID)},
        {QLatin1String("title"), text(folder.title)},
        {QLatin1String("pages"), pages(folder.pages)},
    };
}

QJsonObject object(const LaunchpadLayout::Item& item) {
    return std::visit([](const auto& one) { return object(one); }, item);
}

template<typename Item>
QJsonArray pages(const std::vector<std::vector<Item>>& list) {
    QJsonArray array;
    for (const std::vector<Item>& page : list) {
        QJsonArray items;
        for (const Item& item : page)
            items.append(object(item));
        array.append(items);
    }
    return array;
}

QJsonObject object(const LayoutDifferences& differences) {
    QJsonArray moved;
    for (const LayoutDifferences::Move& move : differences.moved) {
        moved.append(QJsonObject{
            {QLatin1String("name"), text(move.name)},
            {QLatin1String("from"), text(move.from)},
            {QLatin1String("to"), text(move.to)},
        });
    }
    return {
        {QLatin1String("onlyBefore"), texts(differences.onlyBefore)},
        {QLatin1String("onlyAfter"), texts(differences.onlyAfter)},
        {QLatin1String("moved"), moved},
        {QLatin1String("tilesOnlyBefore"), texts(differences.tilesOnlyBefore)},
        {QLatin1String("tilesOnlyAfter"), texts(differences.tilesOnlyAfter)},
        {QLatin1String("isDockReordered"), differences.isDockReordered},
    };
}

std::string plainText(const QJsonDocument& document) {
    std::string json = document.toJson(QJsonDocument::Indented).toStdString();
    while (!json.empty() && json.back() == '\n')
        json.pop_back();
    return json;
}

} // namespace

QJsonArray toJson(const std::vector<ApplicationInfo>& apps) {
    QJsonArray array;
    for (const ApplicationInfo& app : apps) {
        array.append(QJsonObject{
            {QLatin1String("id"), text(app.id)},
            {QLatin1String("name"), text(app.name)},
            {QLatin1String("bundleID"), text(app.bundleID)},
            {QLatin1String("icon"), text(app.icon.path().string())},
            {QLatin1String("path"), text(app.path.string())},
            {QLatin1String("isIOSApp"), app.isIOSApp},
            {QLatin1String("isUnsupportedApp"), app.isUnsupportedApp},
            {QLatin1String("permanentIconPaths"), paths(app.permanentIconPaths)},
            {QLatin1String("pendingAdditionPaths"), paths(app.pendingAdditionPaths)},
            {QLatin1String("hiddenPermanentIndices"), numbers(app.hiddenPermanentIndices)},
            {QLatin1String("selectedIconIndex"), app.selectedIconIndex},
            {QLatin1String("themeIcons"), paths(app.themeIcons)},
        });
    }
    return array;
}

QJsonArray toJson(const std::vector<DockApp>& apps) {
    QJsonArray array;
    for (const DockApp& app : apps) {
        array.append(QJsonObject{
            {QLatin1String("bundleID"), text(app.bundleID)},
            {QLatin1String("path"), text(app.path.string())},
        });
    }
    return array;
}

QJsonArray toJson(const std::map<std::string, TavrikMapping>& mappings) {
    QJsonArray array;
    for (const auto& [bundleID, mapping] : mappings) {
        array.append(QJsonObject{
            {QLatin1String("bundleID"), text(bundleID)},
            {QLatin1String("originalRowID"), number(mapping.originalRowID)},
            {QLatin1String("tavrikRowID"), number(mapping.tavrikRowID)},
            {QLatin1String("createdDate"), text(isoText(mapping.createdDate))},
        });
    }
    return array;
}

QJsonObject toJson(const std::string& bundleID, const IconRow& row) {
    return {
        {QLatin1String("bundleID"), text(bundleID)},
        {QLatin1String("permanentIconPaths"), paths(row.permanentIconPaths)},
        {QLatin1String("pendingAdditionPaths"), paths(row.pendingAdditionPaths)},
        {QLatin1String("hiddenPermanentIndices"), numbers(row.hiddenPermanentIndices)},
        {QLatin1String("selectedIconIndex"), row.selectedIconIndex},
        {QLatin1String("displayPaths"), paths(row.displayPaths())},
    };
}

QJsonObject toJson(const StagedChanges& staged, const std::optional<Date>& timestamp) {
    QJsonObject changes;
    for (const auto& [bundleID, change] : staged.pendingChanges) {
        changes.insert(key(bundleID),
                       QJsonObject{
                           {QLatin1String("iconPaths"), paths(change.iconPaths)},
                           {QLatin1String("selectedIndex"),
                            change.selectedIndex ? QJsonValue(*change.selectedIndex) : QJsonValue()},
                       });
    }
    QJsonArray hides;
    for (const ThemeIconHide& hide : staged.pendingThemeIconHides) {
        hides.append(QJsonObject{
            {QLatin1String("themeID"), text(hide.themeID)},
            {QLatin1String("iconFileName"), text(hide.iconFileName)},
        });
    }
    QJsonObject deletions;
    for (const auto& [themeID, names] : staged.pendingThemeIconDeletions)
        deletions.insert(key(themeID), texts(names));
    QJsonObject marked;
    for (const auto& [bundleID, indices] : staged.markedForDeletion)
        marked.insert(key(bundleID), numbers(indices));
    return {
        {QLatin1String("pendingChanges"), changes},
        {QLatin1String("pendingThemeIconHides"), hides},
        {QLatin1String("pendingThemeIconDeletions"), deletions},
        {QLatin1String("pendingThemeDeletions"), texts(staged.pendingThemeDeletions)},
        {QLatin1String("markedForDeletion"), marked},
        {QLatin1String("pendingFont"), staged.pendingFont ? text(*staged.pendingFont) : QJsonValue()},
        {QLatin1String("pendingReset"), staged.pendingReset},
        {QLatin1String("timestamp"), timestamp ? text(isoText(*timestamp)) : QJsonValue()},
    };
}

QJsonArray toJson(const FontReplacer& fonts, const std::string& preview) {
    QJsonArray array;
    for (const FontReplacer::FontMap& font : fonts.allFontMaps()) {
        array.append(QJsonObject{
            {QLatin1String("name"), text(font.name)},
            {QLatin1String("preview"), text(fonts.convert(preview.empty() ? font.name : preview, font.name))},
            {QLatin1String("isMultiCase"), fonts.isMultiCaseFont(font.name)},
            {QLatin1String("hasDigits"), font.digits.has_value()},
        });
    }
    return array;
}

QJsonArray toJson(const std::vector<BackupListItem>& backups) {
    QJsonArray array;
    for (const BackupListItem& backup : backups)
        array.append(object(backup));
    return array;
}

QJsonObject toJson(const BackupListItem& backup, const LayoutSummary& layout,
                   const std::optional<LayoutDifferences>& differences) {
    QJsonObject json = object(backup);
    json.insert(QLatin1String("launchpad"),
                QJsonObject{{QLatin1String("pages"), pages(layout.launchpad.pages)}});
    json.insert(QLatin1String("dock"), objects(layout.dock));
    json.insert(QLatin1String("differences"), differences ? object(*differences) : QJsonValue());
    return json;
}

QJsonObject toJson(const ApplyPipeline::Preview& preview) {
    QJsonArray changes;
    for (const StoreChange& change : preview.plan.changes) {
        changes.append(QJsonObject{
            {QLatin1String("kind"), text(nameOf(change.kind))},
            {QLatin1String("subject"), text(change.subject)},
            {QLatin1String("from"), text(change.from)},
            {QLatin1String("to"), text(change.to)},
        });
    }
    return {
        {QLatin1String("created"), texts(preview.plan.created)},
        {QLatin1String("updated"), texts(preview.plan.updated)},
        {QLatin1String("removed"), texts(preview.plan.removed)},
        {QLatin1String("dockRestarts"), preview.plan.dockRestarts()},
        {QLatin1String("changes"), changes},
        {QLatin1String("obstacles"), texts(preview.obstacles)},
    };
}

std::string jsonText(const QJsonArray& array) {
    return plainText(QJsonDocument(array));
}

std::string jsonText(const QJsonObject& object) {
    return plainText(QJsonDocument(object));
}

} // namespace tavrik
