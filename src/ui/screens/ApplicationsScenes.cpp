#include "app/Managers.h"
#include "platform/Png.h"
#include "practice/art/IconArtist.h"
#include "ui/Program.h"
#include "ui/models/Background.h"
#include "ui/screens/Scene.h"
#include "ui/screens/Stagehand.h"

#include <QAbstractItemModel>
#include <QFile>
#include <QMimeData>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QUrl>

#include <map>
#include <memory>

namespace tavrik {

namespace {

QImage picture(int number) {
    struct Look {
        QRgb top;
        QRgb bottom;
        const char* glyph;
    };

    static constexpr Look looks[] = {{0x7fd0ff, 0x1c5fd0, "compass"},  {0xc4a4ff, 0x5a2bb8, "envelope"},
                                     {0xffb0c4, 0xc81e56, "leaf"},     {0x8be0c0, 0x0f7f63, "globe"},
                                     {0xffd27f, 0xe8622a, "calendar"}, {0x5b6470, 0x1c2126, "flame"}};
    const Look& look = looks[number % 6];
    return practice::drawIcon({.top = look.top, .bottom = look.bottom, .glyph = look.glyph}, 512);
}

/// Files to drag, for as long as the scenes are there.
struct Desk {
    QTemporaryDir folder;

    Desk() {
        picture(3).save(folder.filePath(QStringLiteral("Harbour.png")));
        picture(4).save(folder.filePath(QStringLiteral("Dawn.png")));
        QFile note(folder.filePath(QStringLiteral("Shopping.txt")));
        if (note.open(QIODevice::WriteOnly))
            note.write("Bread, apples, tea\n");
    }

    QUrl operator[](const char* name) const {
        return QUrl::fromLocalFile(folder.filePath(QLatin1String(name)));
    }
};

QQuickItem* rowAt(int index) {
    auto* const list = Stagehand::find(QStringLiteral("appList"));
    QQuickItem* row = nullptr;
    QMetaObject::invokeMethod(list, "itemAtIndex", Q_RETURN_ARG(QQuickItem*, row), Q_ARG(int, index));
    return row;
}

void drag(int row, const QList<QUrl>& files) {
    QMimeData data;
    data.setUrls(files);
    Stagehand::dragOnto(rowAt(row), data);
}

ApplicationsPage& page(Program& program) {
    return *program.model().applications();
}

void show(Program& program, WindowModel::Place place) {
    program.model().endFirstStart();
    program.model().setPlace(place);
    page(program).clearFilters();
    Stagehand::waitFor([&] { return page(program).userApps()->state() == ApplicationsList::Ready; });
}

QString identifierAt(Program& program, int row) {
    return page(program).userApps()->rows()->index(row, 0).data(ApplicationsModel::bundleID).toString();
}

void makeTheme(Program& program) {
    std::map<std::string, Bytes> icons;
    for (const int row : {0, 1, 2, 4, 5, 7, 8}) {
        if (auto png = png::encode(picture(row + 3)))
            icons.emplace(identifierAt(program, row).toStdString() + ".png", std::move(*png));
    }
    bool isMade = false;
    Background background(program.delegate());
    background.run(
        program.mainWindow(), [&] { return program.managers().themes.createTheme("Harbour", icons); },
        [&](const Result<Theme>&) { isMade = true; });
    Stagehand::waitFor([&] { return isMade; });
}

/// Gives some applications icons of the person's own, and others those of a theme.
void furnish(Program& program, const Desk& desk) {
    show(program, WindowModel::Place::UserApps);
    if (program.model().stagedCount() > 0)
        return;
    makeTheme(program);
    page(program).userApps()->addFiles(identifierAt(program, 1), {desk["Harbour.png"], desk["Dawn.png"]});
    page(program).userApps()->addFiles(identifierAt(program, 3), {desk["Dawn.png"]});
    const auto hasThemeIcon = [&] {
        return !page(program)
                    .userApps()
                    ->rows()
                    ->index(2, 0)
                    .data(ApplicationsModel::themeIcons)
                    .toStringList()
                    .isEmpty();
    };
    Stagehand::waitFor(hasThemeIcon);
    page(program).userApps()->select(identifierAt(program, 2), 0);
    Stagehand::waitFor([&] { return program.model().stagedCount() == 3; });
}

} // namespace

std::vector<Scene> applicationsScenes() {
    const auto desk = std::make_shared<Desk>();
    const auto scene = [desk](const char* name, std::function<void(Program&)> act) {
        return Scene{QLatin1String(name), [desk, act = std::move(act)](Program& program) {
                         furnish(program, *desk);
                         Stagehand::pointAway(program.mainWindow());
                         act(program);
                         return program.mainWindow();
                     }};
    };
    return {
        scene("applications", [](Program&) {}),
        scene("applications-hover",
              [](Program&) { Stagehand::hover(Stagehand::findIn(rowAt(1), QStringLiteral("tile1"))); }),
        scene("applications-tip",
              [](Program&) {
                  Stagehand::hover(Stagehand::findIn(rowAt(2), QStringLiteral("tile2")));
                  Stagehand::waitFor([] { return false; }, 1000); // as long as a tool tip hesitates
              }),
        scene("applications-drop",
              [desk](Program&) { drag(4, {(*desk)["Harbour.png"], (*desk)["Dawn.png"]}); }),
        scene("applications-refused-drop", [desk](Program&) { drag(2, {(*desk)["Shopping.txt"]}); }),
        scene("applications-large",
              [](Program& program) {
                  Stagehand::dragAway(rowAt(2));
                  Stagehand::find(QStringLiteral("appList"))->forceActiveFocus(Qt::TabFocusReason);
                  for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Down, Qt::Key_Space})
                      Stagehand::press(program.mainWindow(), key);
              }),
        scene("applications-keyboard",
              [](Program& program) { Stagehand::press(program.mainWindow(), Qt::Key_Escape); }),
        scene("applications-filter",
              [](Program& program) {
                  page(program).setShowOnlyDockItems(true);
                  Stagehand::click(QStringLiteral("filterApps"));
              }),
        scene("applications-no-match",
              [](Program& program) {
                  Stagehand::press(program.mainWindow(), Qt::Key_Escape);
                  page(program).clearFilters();
                  page(program).setSearchText(QStringLiteral("Zeppelin"));
              }),
        scene("applications-system",
              [](Program& program) {
                  show(program, WindowModel::Place::SystemApps);
                  page(program).setShowUnsupportedApps(true);
                  Stagehand::waitFor([] { return Stagehand::click(QStringLiteral("whyNot")); });
              }),
    };
}

} // namespace tavrik
