#include "ui/Program.h"
#include "ui/screens/Scene.h"
#include "ui/screens/Stagehand.h"

#include <QQuickItem>

namespace tavrik {

namespace {

QQuickWindow* showFonts(Program& program) {
    Stagehand::waitFor([&] { return !program.delegate().isStarting(); });
    program.model().setShowsPreview(false);
    program.model().setPlace(WindowModel::Place::Fonts);
    FontsPage& fonts = *program.model().fonts();
    Stagehand::waitFor([&] {
        const auto& styles = *fonts.styles();
        return !styles.index(0).data(styles.roleNames().key("sample")).toString().isEmpty();
    });
    return program.mainWindow();
}

} // namespace

std::vector<Scene> fontsScenes() {
    return {{QStringLiteral("fonts"), showFonts},
            {QStringLiteral("fonts-staged"),
             [](Program& program) {
                 QQuickWindow* const window = showFonts(program);
                 program.model().fonts()->choose(QStringLiteral("Mathematical Script"));
                 return window;
             }},
            {QStringLiteral("fonts-text"),
             [](Program& program) {
                 QQuickWindow* const window = showFonts(program);
                 program.model().fonts()->setSample(QStringLiteral("Hello, Launchpad 2025"));
                 return window;
             }},
            {QStringLiteral("fonts-end"), [](Program& program) {
                 QQuickWindow* const window = showFonts(program);
                 program.model().fonts()->setSample({});
                 program.model().fonts()->takeBack();
                 QQuickItem* const grid = Stagehand::find(QStringLiteral("fontStyles"));
                 grid->setProperty("contentY", grid->property("contentHeight").toReal() - grid->height());
                 return window;
             }}};
}

} // namespace tavrik
