#include "ui/Program.h"
#include "ui/screens/Scene.h"
#include "ui/screens/Stagehand.h"

#include <QQuickItem>
#include <QQuickWindow>

namespace tavrik {

namespace {

/// A menu of the window's own menu bar, with a line of it chosen.
QQuickWindow* showMenu(Program& program, int menu) {
    QQuickWindow* const window = program.mainWindow();
    Stagehand::waitFor([] { return Stagehand::find(QStringLiteral("menu-titles")) != nullptr; });
    Stagehand::settled(window); // a sheet of the start may be leaving
    Stagehand::press(window, Qt::Key_Escape);
    Stagehand::click(Stagehand::find(QStringLiteral("menu-titles"))->childItems().value(menu));
    Stagehand::waitFor([] { return Stagehand::find(QStringLiteral("menu-lines")) != nullptr; });
    Stagehand::press(window, Qt::Key_Down);
    return window;
}

QQuickWindow* closeMenus(Program& program) {
    Stagehand::press(program.mainWindow(), Qt::Key_Escape);
    Stagehand::pointAway(program.mainWindow());
    return program.mainWindow();
}

} // namespace

std::vector<Scene> windowScenes() {
    return {{QStringLiteral("window-menu-program"), [](Program& program) { return showMenu(program, 0); }},
            {QStringLiteral("window-menu-edit"), [](Program& program) { return showMenu(program, 2); }},
            {QStringLiteral("window"), closeMenus}};
}

} // namespace tavrik
