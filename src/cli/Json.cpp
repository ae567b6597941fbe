#include "cli/Json.h"

#include <QJsonDocument>

namespace tavrik {

namespace {

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

} // namespace

QJsonArray toJson(const std::vector<ApplicationInfo>& apps) {
    QJsonArray array;
    for (const ApplicationInfo& app : apps) {
        QJsonArray hidden;
        for (int index : app.hiddenPermanentIndices)
            hidden.append(index);
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
            {QLatin1String("hiddenPermanentIndices"), hidden},
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

std::string jsonText(const QJsonArray& array) {
    std::string json = QJsonDocument(array).toJson(QJsonDocument::Indented).toStdString();
    while (!json.empty() && json.back() == '\n')
        json.pop_back();
    return json;
}

} // namespace tavrik
