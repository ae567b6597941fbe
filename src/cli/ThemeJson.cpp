#include "cli/ThemeJson.h"

#include <algorithm>

namespace tavrik {

namespace {

QString text(const std::string& value) {
    return QString::fromStdString(value);
}

QJsonArray texts(const std::vector<std::string>& list) {
    QJsonArray array;
    for (const std::string& entry : list)
        array.append(text(entry));
    return array;
}

QJsonArray identifiers(const std::vector<ApplicationInfo>& apps) {
    QJsonArray array;
    for (const ApplicationInfo& app : apps)
        array.append(text(app.bundleID));
    return array;
}

QJsonObject record(const Theme& theme) {
    return {{QLatin1String("themeID"), text(theme.themeID)},
            {QLatin1String("name"), text(theme.name)},
            {QLatin1String("createdDate"), text(isoText(theme.createdDate))}};
}

QJsonArray records(const std::vector<IconMatch>& matches) {
    static constexpr const char* kKinds[] = {"identifier", "name", "foldedName", "subsequence"};
    QJsonArray array;
    for (const IconMatch& match : matches) {
        array.append(QJsonObject{{QLatin1String("fileName"), text(match.fileName)},
                                 {QLatin1String("bundleID"), text(match.bundleID)},
                                 {QLatin1String("appName"), text(match.appName)},
                                 {QLatin1String("kind"), QLatin1String(kKinds[static_cast<int>(match.kind)])},
                                 {QLatin1String("score"), match.score}});
    }
    return array;
}

} // namespace

std::vector<ShownThemeIcon> iconsInWords(const std::vector<ThemeIcon>& icons,
                                         const std::set<std::string>& hidden, const StagedChanges& staged,
                                         const std::string& themeID) {
    const auto deletions = staged.pendingThemeIconDeletions.find(themeID);
    std::vector<ShownThemeIcon> shown;
    for (const ThemeIcon& icon : icons) {
        const std::string name = icon.file.name();
        const auto isNamed = [&](const auto& names) { return std::ranges::find(names, name) != names.end(); };
        const bool isToBeHidden = isNamed([&] {
            std::vector<std::string> names;
            for (const ThemeIconHide& hide : staged.pendingThemeIconHides) {
                if (hide.themeID == themeID)
                    names.push_back(hide.iconFileName);
            }
            return names;
        }());
        std::string state;
        if (deletions != staged.pendingThemeIconDeletions.end() && isNamed(deletions->second))
            state = "to be deleted";
        else if (isNamed(hidden))
            state = "hidden";
        else if (isToBeHidden)
            state = "to be hidden";
        shown.push_back({icon, std::move(state)});
    }
    return shown;
}

QJsonArray toJson(const std::vector<ListedTheme>& themes) {
    QJsonArray array;
    for (const ListedTheme& listed : themes) {
        QJsonObject object = record(listed.theme);
        object.insert(QLatin1String("icons"), static_cast<qint64>(listed.icons));
        object.insert(QLatin1String("isToBeDeleted"), listed.isToBeDeleted);
        array.append(object);
    }
    return array;
}

QJsonObject toJson(const Theme& theme, const std::vector<ShownThemeIcon>& icons) {
    QJsonArray array;
    for (const ShownThemeIcon& icon : icons) {
        array.append(QJsonObject{{QLatin1String("bundleID"), text(icon.icon.bundleID)},
                                 {QLatin1String("file"), text(icon.icon.file.string())},
                                 {QLatin1String("state"), text(icon.state)}});
    }
    QJsonObject object = record(theme);
    object.insert(QLatin1String("icons"), array);
    return object;
}

QJsonObject toJson(const Theme& theme, const ThemeCoverage& coverage) {
    QJsonArray without;
    for (const ThemeIcon& icon : coverage.withoutApplication)
        without.append(text(icon.bundleID));
    QJsonObject object = record(theme);
    object.insert(QLatin1String("covered"), identifiers(coverage.covered));
    object.insert(QLatin1String("lacking"), identifiers(coverage.lacking));
    object.insert(QLatin1String("hidden"), identifiers(coverage.hidden));
    object.insert(QLatin1String("notRestylable"), identifiers(coverage.notRestylable));
    object.insert(QLatin1String("withoutApplication"), without);
    return object;
}

QJsonObject toJson(const FolderImportReport& report) {
    return {{QLatin1String("theme"), report.theme ? QJsonValue(record(*report.theme)) : QJsonValue()},
            {QLatin1String("taken"), records(report.taken)},
            {QLatin1String("doubtful"), records(report.matches.doubtful)},
            {QLatin1String("unmatched"), texts(report.matches.unmatched)},
            {QLatin1String("failed"), texts(report.failed)}};
}

} // namespace tavrik
