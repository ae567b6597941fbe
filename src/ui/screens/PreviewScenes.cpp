#include "model/catalogue/Refusal.h"
#include "ui/Program.h"
#include "ui/screens/Scene.h"
#include "ui/screens/Stagehand.h"

#include <QPainter>
#include <QQuickItem>

#include <future>
#include <map>

namespace tavrik {

namespace {

/// A disc, as icon sets have them.
QImage disc(int hue) {
    QImage picture(1024, 1024, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient colours(0, 0, 0, 1024);
    colours.setColorAt(0, QColor::fromHsv(hue, 120, 255));
    colours.setColorAt(1, QColor::fromHsv(hue, 200, 190));
    painter.setBrush(colours);
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(60, 60, 904, 904);
    painter.setBrush(QColor(255, 255, 255, 220));
    painter.drawEllipse(362, 362, 300, 300);
    return picture;
}

void stageIcons(Program& program, std::size_t count) {
    Managers& managers = program.managers();
    const auto apps = std::async(std::launch::async, [&] { return managers.apps.loadApplications(); }).get();
    std::map<std::string, MacPath> icons;
    for (const ApplicationInfo& app : apps) {
        if (icons.size() == count)
            break;
        if (!refusalOf(app, managers.unsupported.contains(app.bundleID)).empty())
            continue;
        const auto hue = static_cast<int>(icons.size() * 37 % 360);
        if (const auto icon = managers.iconStore.savePendingIcon(disc(hue), app.bundleID))
            icons.emplace(app.bundleID, *icon);
    }
    managers.pendingChanges.addIcons(icons);
}

QQuickWindow* showPreview(Program& program) {
    Stagehand::waitFor([&] { return !program.delegate().isStarting(); });
    program.model().setShowsPreview(true);
    PreviewModel& preview = *program.model().preview();
    Stagehand::waitFor([&] { return preview.isLoaded() && preview.isCurrent(); });
    return program.mainWindow();
}

} // namespace

std::vector<Scene> previewScenes() {
    return {{QStringLiteral("preview"), showPreview},
            {QStringLiteral("preview-changed"),
             [](Program& program) {
                 stageIcons(program, 12);
                 program.managers().pendingChanges.setPendingFont("Mathematical Bold Script");
                 return showPreview(program);
             }},
            {QStringLiteral("preview-folder"),
             [](Program& program) {
                 QQuickWindow* const window = showPreview(program);
                 for (const auto& page : program.model().preview()->scene().pages) {
                     for (const PreviewItem& item : page) {
                         if (item.kind == PreviewItem::Kind::folder) {
                             program.model().preview()->openFolder(QString::fromStdString(item.key));
                             return window;
                         }
                     }
                 }
                 return window;
             }},
            {QStringLiteral("preview-sides"),
             [](Program& program) {
                 QQuickWindow* const window = showPreview(program);
                 program.model().preview()->closeFolder();
                 QQuickItem* const comparison = Stagehand::find(QStringLiteral("comparison"));
                 comparison->setProperty("isSplit", false);
                 return window;
             }},
            {QStringLiteral("preview-second-page"), [](Program& program) {
                 QQuickWindow* const window = showPreview(program);
                 Stagehand::find(QStringLiteral("comparison"))->setProperty("isSplit", true);
                 Stagehand::click(QStringLiteral("pageDot1"));
                 return window;
             }}};
}

} // namespace tavrik
