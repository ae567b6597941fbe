#include "app/Managers.h"
#include "platform/HostFile.h"
#include "platform/Mac.h"
#include "themes/HostPictures.h"
#include "themes/ThemeExchange.h"
#include "themes/ThemeFile.h"
#include "ui/models/Background.h"
#include "ui/models/CoreWords.h"
#include "ui/models/Text.h"
#include "ui/models/ThemesPage.h"

#include <QFileInfo>
#include <QGuiApplication>

#include <algorithm>
#include <utility>

namespace tavrik {

namespace {

constexpr auto kThemeFileExtension = "tavriktheme";

HostPath pathOf(const QUrl& url) {
    return HostPath(url.toLocalFile().toStdString());
}

/// The Mac's panel does not hand over the name of a file that is there before the person has agreed to replace
/// it.
bool doesPanelAsk() {
    return QGuiApplication::platformName() == QLatin1String("cocoa");
}

/// What came of several theme files.
struct Taken {
    std::vector<Theme> themes;
    QStringList refused;
};

Taken takeThemes(const std::vector<HostPath>& files, Managers& managers) {
    ThemeExchange exchange(managers.applyServices.mac, managers.themes);
    Taken taken;
    for (const HostPath& file : files) {
        const auto content = readHostFile(file, kLargestThemeFile);
        auto theme = content ? exchange.importTheme(*content, file.name()) : Result<Theme>(content.error());
        if (theme)
            taken.themes.push_back(std::move(*theme));
        else
            taken.refused.append(inTheirLanguage(theme.error().description));
    }
    return taken;
}

} // namespace

void ThemesPage::importFiles(const QList<QUrl>& files) {
    std::vector<HostPath> paths;
    std::ranges::transform(files, std::back_inserter(paths), pathOf);
    if (paths.empty() || !m_work.begin(tr("Importing “%1”…").arg(toQString(paths.front().name()))))
        return;
    m_with.background.run(
        this, [paths, &managers = m_with.managers] { return takeThemes(paths, managers); },
        [this](const Taken& taken) {
            QStringList names;
            for (const Theme& theme : taken.themes)
                names.append(tr("“%1”").arg(toQString(theme.name)));
            if (names.isEmpty())
                m_work.fail(taken.refused.front(), taken.refused.mid(1));
            else if (!taken.refused.isEmpty())
                m_work.fail(tr("Imported %1.").arg(names.join(tr(", "))), taken.refused);
            else
                m_work.end(tr("Imported %1.").arg(names.join(tr(", "))));
        });
}

QString ThemesPage::exportName(const QString& themeID) const {
    const ThemeFacts* const facts = m_shelf.reading().find(themeID.toStdString());
    return QStringLiteral("%1.%2").arg(facts ? toQString(facts->theme.name) : QString(),
                                       QLatin1String(kThemeFileExtension));
}

void ThemesPage::exportTheme(const QString& themeID, const QUrl& file) {
    const Export wanted{themeID, file};
    if (doesPanelAsk())
        return write(wanted);
    m_with.background.run(
        this, [target = file.toLocalFile()] { return QFileInfo::exists(target); },
        [this, wanted](bool isThere) {
            if (!isThere)
                return write(wanted);
            m_waiting = wanted;
            Q_EMIT changed();
        });
}

QString ThemesPage::fileToReplace() const {
    return m_waiting ? m_waiting->file.fileName() : QString();
}

void ThemesPage::replaceFile() {
    if (const auto wanted = std::exchange(m_waiting, std::nullopt)) {
        Q_EMIT changed();
        write(*wanted);
    }
}

void ThemesPage::keepFile() {
    if (std::exchange(m_waiting, std::nullopt))
        Q_EMIT changed();
}

void ThemesPage::write(const Export& wanted) {
    const ThemeFacts* const facts = m_shelf.reading().find(wanted.themeID.toStdString());
    if (!facts || !m_work.begin(tr("Exporting “%1”…").arg(toQString(facts->theme.name)), facts->theme.themeID))
        return;
    m_with.background.run(
        this,
        [&managers = m_with.managers, theme = facts->theme, target = pathOf(wanted.file)]() -> Status {
            const auto content = ThemeExchange(managers.applyServices.mac, managers.themes).exportTheme(theme);
            return content ? writeHostFile(target, *content) : content.error();
        },
        [this, name = toQString(facts->theme.name),
         target = toQString(pathOf(wanted.file).name())](const Status& written) {
            if (written)
                m_work.end(tr("“%1” is saved as “%2”.").arg(name, target));
            else
                m_work.fail(inTheirLanguage(written.error().description));
        });
}

void ThemesPage::drop(const QList<QUrl>& things) {
    QList<QUrl> themeFiles;
    for (const QUrl& thing : things) {
        const HostPath path = pathOf(thing);
        const QString name = toQString(path.name());
        if (QFileInfo(toQString(path.string())).isDir()) {
            m_folderImport.begin(thing);
            return;
        }
        if (path.extension() == kThemeFileExtension)
            themeFiles.append(thing);
        else if (isPictureName(path.name()))
            m_work.refuse(tr("“%1” is a picture. Open the theme that it is for, and drop it there.").arg(name));
        else
            m_work.refuse(tr("“%1” is neither a theme file nor a folder of pictures.").arg(name));
    }
    if (!themeFiles.isEmpty())
        importFiles(themeFiles);
}

} // namespace tavrik
