#include "cli/ThemeFileCommands.h"

#include "cli/AppLookup.h"
#include "cli/Table.h"
#include "cli/ThemeJson.h"
#include "cli/ThemeLookup.h"
#include "cli/Words.h"
#include "platform/HostFile.h"
#include "themes/FolderImport.h"
#include "themes/HostPictures.h"
#include "themes/ThemeExchange.h"
#include "themes/ThemeFile.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace tavrik {

namespace {

constexpr std::size_t kMostNames = 10; ///< of files that fit nothing; an icon set has thousands

QString named(const std::string& path) {
    return QString::fromStdString(path);
}

const char* inWords(MatchKind kind) {
    switch (kind) {
    case MatchKind::identifier:
        return "by identifier";
    case MatchKind::name:
        return "by name";
    case MatchKind::foldedName:
        return "by similar name";
    case MatchKind::subsequence:
        break;
    }
    return "a guess";
}

std::string tableOf(const std::vector<IconMatch>& matches) {
    Table table({"Application", "Picture", "Found", "Score"});
    for (const IconMatch& match : matches)
        table.add({match.appName, match.fileName, inWords(match.kind),
                   QString::number(match.score, 'f', 2).toStdString()});
    return table.text();
}

void tell(const Companion& companion, const FolderImportReport& report, bool acceptsDoubtful) {
    if (!report.taken.empty())
        companion.say(tableOf(report.taken));
    if (!acceptsDoubtful && !report.matches.doubtful.empty()) {
        companion.say("Doubtful, and not taken (--accept-doubtful takes them; so does renaming a file):");
        companion.say(tableOf(report.matches.doubtful));
    }
    const auto& unmatched = report.matches.unmatched;
    if (unmatched.empty())
        return;
    std::string names;
    for (std::size_t i = 0; i < std::min(unmatched.size(), kMostNames); ++i)
        names += (i == 0 ? "" : ", ") + unmatched[i];
    if (unmatched.size() > kMostNames)
        names += " and " + std::to_string(unmatched.size() - kMostNames) + " more";
    companion.say("Not needed: " + names + ".");
}

} // namespace

ExitCode ThemeExportCommand::run(Companion& companion) {
    if (const ExitCode opened = openThemes(companion, Access::looking); opened != ExitCode::done)
        return opened;
    const auto found = findTheme(companion, theme);
    const auto* exported = std::get_if<Theme>(&found);
    if (!exported)
        return std::get<ExitCode>(found);
    const HostPath target(file.empty() ? exported->name + ".tavriktheme" : file);
    const QFileInfo present(named(target.string()));
    if (present.isDir())
        return companion.fail(target.string() + " is a folder; name a file in it.");
    if (!force && (present.exists() || present.isSymLink()))
        return companion.refuse(target.string() + " is there already; --force replaces it.");
    const auto content =
        ThemeExchange(companion.host().mac(), companion.managers().themes).exportTheme(*exported);
    if (!content)
        return companion.fail(content.error().description);
    if (const Status written = writeHostFile(target, *content); !written)
        return companion.fail(written.error().description);
    companion.say("The theme \"" + exported->name + "\" is in " + target.string() + ".");
    return ExitCode::done;
}

ExitCode ThemeImportCommand::run(Companion& companion) {
    const HostPath source(file);
    const auto content = readHostFile(source, kLargestThemeFile);
    if (!content)
        return companion.fail(content.error().description);
    if (const ExitCode opened = openThemes(companion, Access::writing); opened != ExitCode::done)
        return opened;
    ThemeManager& themes = companion.managers().themes;
    const auto imported = ThemeExchange(companion.host().mac(), themes).importTheme(*content, source.name());
    if (!imported)
        return companion.fail(imported.error().description);
    companion.say("The theme \"" + imported->name + "\" is in your library, with " +
                  counted(themes.library().icons(imported->themeID).size(), "icon") +
                  ". \"tavrikctl theme apply '" + imported->name + "'\" chooses them.");
    return ExitCode::done;
}

ExitCode ThemeImportFolderCommand::run(Companion& companion) {
    const auto pictures = pictureFolderAt(HostPath(folder));
    if (!pictures)
        return companion.fail(pictures.error().description);
    if (const ExitCode opened = openThemes(companion, Access::writing); opened != ExitCode::done)
        return opened;
    Managers& managers = companion.managers();
    const auto apps = managers.apps.loadApplications();
    if (apps.empty())
        return companion.fail(kNoCatalogue);
    const std::string own = QDir(QDir::cleanPath(QDir(named(folder)).absolutePath())).dirName().toStdString();
    const auto report = importFolder(
        *pictures, apps, {.themeName = name.empty() ? own : name, .acceptsDoubtful = acceptsDoubtful},
        managers.fonts.fontReplacer(), managers.themes);
    if (!report)
        return companion.fail(report.error().description + ". --name NAME gives it a name of your choice.");

    for (const std::string& sentence : report->failed)
        companion.complain(sentence);
    if (json)
        companion.say(jsonText(toJson(*report)));
    else
        tell(companion, *report, acceptsDoubtful);
    if (!report->theme)
        return companion.fail(
            "No picture fits an installed application for sure, so no theme was made. Name them "
            "after applications or bundle identifiers; \"tavrikctl apps\" lists those.");
    if (!json)
        companion.say("The theme \"" + report->theme->name + "\" is made, with " +
                      counted(report->taken.size(), "icon") + " of " +
                      counted(pictures->names.size(), "picture") + ". \"tavrikctl theme apply '" +
                      report->theme->name + "'\" chooses them.");
    return report->failed.empty() ? ExitCode::done : ExitCode::failed;
}

} // namespace tavrik
