#include "ui/models/PicturesForTheme.h"

#include "app/Managers.h"
#include "icons/ImageIntake.h"
#include "themes/IconMatcher.h"
#include "ui/models/CoreWords.h"
#include "ui/models/HandedFile.h"
#include "ui/models/Text.h"

#include <QCoreApplication>

#include <algorithm>
#include <map>

namespace tavrik {

namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("PicturesForTheme", text);
}

std::string nameOf(const QUrl& file) {
    return nameOfHandedFile(file).toStdString();
}

/// The application of each picture by its file name; none where the name tells too little.
std::map<std::string, std::string> applicationsFor(const PicturesForTheme& dropped,
                                                   const std::vector<ApplicationInfo>& apps,
                                                   const FontReplacer& fonts) {
    if (dropped.files.size() == 1 && !dropped.bundleID.empty())
        return {{nameOf(dropped.files.front()), dropped.bundleID}};
    std::vector<std::string> names;
    for (const QUrl& file : dropped.files)
        names.push_back(nameOf(file));
    std::map<std::string, std::string> found;
    for (const IconMatch& match : matchIcons(names, apps, fonts).sure)
        found.emplace(match.fileName, match.bundleID);
    return found;
}

Status addPicture(const QUrl& file, const std::string& bundleID, const Theme& theme, Managers& managers) {
    const auto content = readHandedFile(file);
    if (!content)
        return content.error();
    const auto picture = readPicture(*content, nameOf(file));
    if (!picture)
        return picture.error();
    Status added = managers.themes.addIcon(*picture, bundleID, theme);
    if (const auto name = themeIconName(bundleID))
        managers.iconCache.remove(managers.themes.library().iconsOf(theme.themeID) / *name);
    return added;
}

} // namespace

DropAnswer takePictures(const PicturesForTheme& dropped, const std::vector<ApplicationInfo>& apps,
                        Managers& managers) {
    const auto applications = applicationsFor(dropped, apps, managers.fonts.fontReplacer());
    DropAnswer answer;
    for (const QUrl& file : dropped.files) {
        const auto application = applications.find(nameOf(file));
        if (application == applications.end()) {
            answer.refused.append(
                tr("“%1” is not named after one application. Drop it on the icon that it is for.")
                    .arg(nameOfHandedFile(file)));
            continue;
        }
        const Status added = addPicture(file, application->second, dropped.theme, managers);
        if (added)
            ++answer.added;
        else
            answer.refused.append(inTheirLanguage(added.error().description));
    }
    return answer;
}

} // namespace tavrik
