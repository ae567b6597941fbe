#include "ui/Program.h"
#include "ui/screens/SampleThemes.h"
#include "ui/screens/Scene.h"
#include "ui/screens/Stagehand.h"

#include <QDir>
#include <QTemporaryDir>
#include <QUrl>

namespace tavrik {

namespace {

ThemesPage& pageOf(Program& program) {
    return *program.model().themes();
}

QQuickWindow* library(Program& program) {
    ThemesPage& page = pageOf(program);
    program.model().setPlace(WindowModel::Place::Themes);
    page.showLibrary();
    page.work()->dismiss();
    Stagehand::pointAway(program.mainWindow());
    Stagehand::waitFor([&] { return page.isLoaded() && !program.delegate().isStarting(); });
    Stagehand::click(QStringLiteral("welcome-start"));
    return program.mainWindow();
}

QQuickWindow* emptyLibrary(Program& program) {
    removeThemes(program); // other scenes have theirs
    QQuickWindow* const window = library(program);
    Stagehand::waitFor([&] { return pageOf(program).library()->count() == 0; });
    return window;
}

QString themeID(Program& program, const char* name) {
    const ThemesModel* const themes = pageOf(program).library();
    for (const ThemeCard& card : themes->rows()) {
        if (card.name == name)
            return QString::fromStdString(card.themeID);
    }
    return {};
}

QQuickWindow* filledLibrary(Program& program) {
    QQuickWindow* const window = library(program);
    if (themeID(program, "Ember").isEmpty())
        addSampleThemes(program);
    Stagehand::waitFor([&] { return !themeID(program, "Ember").isEmpty(); });
    return window;
}

QQuickWindow* oneTheme(Program& program) {
    QQuickWindow* const window = filledLibrary(program);
    ThemesPage& page = pageOf(program);
    page.folderImport()->cancel();
    page.showTheme(themeID(program, "Sherbet"));
    page.theme()->toggle(QStringLiteral("com.apple.Chess"));
    page.theme()->toggle(QStringLiteral("com.apple.Notes"));
    return window;
}

QQuickWindow* edited(Program& program) {
    QQuickWindow* const window = filledLibrary(program);
    ThemesPage& page = pageOf(program);
    page.showTheme(themeID(program, "Sherbet"));
    page.theme()->setEditing(true);
    page.theme()->remove(QStringLiteral("com.apple.Dictionary"));
    return window;
}

QQuickWindow* applied(Program& program) {
    QQuickWindow* const window = filledLibrary(program);
    ThemesPage& page = pageOf(program);
    page.moveToBin(themeID(program, "Ember"));
    page.apply(themeID(program, "Tide"));
    Stagehand::waitFor([&] { return !page.work()->isRunning(); }, 60'000);
    return window;
}

QQuickWindow* grid(Program& program) {
    QQuickWindow* const window = filledLibrary(program);
    pageOf(program).look()->setShowsGrid(true);
    return window;
}

QQuickWindow* gridWithNames(Program& program) {
    QQuickWindow* const window = grid(program);
    pageOf(program).look()->setShowsFileNames(true);
    return window;
}

QQuickWindow* refusedName(Program& program) {
    QQuickWindow* const window = filledLibrary(program);
    pageOf(program).look()->setShowsFileNames(false);
    pageOf(program).look()->setShowsGrid(false);
    pageOf(program).setCreating(true);
    Stagehand::waitFor([] { return Stagehand::find(QStringLiteral("themeName")) != nullptr; });
    Stagehand::type(window, QStringLiteral("Graphite"));
    return window;
}

QQuickWindow* review(Program& program) {
    static const QTemporaryDir place; // read while the picture is taken
    const QString folder = place.filePath(QStringLiteral("Candy"));
    QDir().mkpath(folder);
    QQuickWindow* const window = filledLibrary(program);
    ThemesPage& page = pageOf(program);
    page.setCreating(false);
    writeSamplePictures(HostPath(folder.toStdString()));
    page.folderImport()->begin(QUrl::fromLocalFile(folder));
    Stagehand::waitFor([&] { return page.folderImport()->phase() == FolderImportModel::Review; });
    page.folderImport()->setThemeName(QStringLiteral("Candy"));
    return window;
}

QQuickWindow* help(Program& program) {
    QQuickWindow* const window = filledLibrary(program);
    Stagehand::waitFor([] { return Stagehand::click(QStringLiteral("themeHelp")); });
    return window;
}

} // namespace

std::vector<Scene> themesScenes() {
    return {{QStringLiteral("themes-empty"), emptyLibrary},
            {QStringLiteral("themes-library"), filledLibrary},
            {QStringLiteral("themes-library-grid"), grid},
            {QStringLiteral("themes-library-grid-names"), gridWithNames},
            {QStringLiteral("themes-create-refused"), refusedName},
            {QStringLiteral("themes-import-review"), review},
            {QStringLiteral("themes-one"), oneTheme},
            {QStringLiteral("themes-one-edited"), edited},
            {QStringLiteral("themes-library-applied"), applied},
            {QStringLiteral("themes-library-help"), help}};
}

} // namespace tavrik
