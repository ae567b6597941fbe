#include "platform/FileManager.h"
#include "platform/Mac.h"
#include "platform/Sqlite.h"
#include "platform/Volume.h"
#include "ui/Program.h"
#include "ui/screens/Scene.h"
#include "ui/screens/Stagehand.h"

#include <QPainter>
#include <QQuickItem>
#include <QQuickWindow>

#include <map>
#include <string>
#include <utility>

namespace tavrik {

namespace {

using Tab = PreferencesPage::Tab;

constexpr int kMinutes = 180'000; ///< for what restarts the Dock of a practice Mac

QQuickWindow* showTab(Program& program, Tab tab) {
    Stagehand::waitFor([&] { return !program.delegate().isStarting(); });
    program.model().endFirstStart();
    program.model().openSettings();
    program.model().preferences()->setTab(tab);
    return program.settingsWindow();
}

void waitFor(const PageWork& work) {
    Stagehand::waitFor([&] { return !work.isBusy(); }, kMinutes);
}

void change(Program& program, const char* statements) {
    const ApplyServices& with = program.managers().applyServices;
    const HostPath file = with.mac.volume.hostPath(with.database.launchpadDatabasePath());
    auto database = sqlite::Connection::open(file, sqlite::OpenMode::readWrite);
    if (!database || !database->execute(statements))
        qFatal("the Launchpad database cannot be changed");
}

QImage tile(int hue) {
    QImage picture(1024, 1024, QImage::Format_ARGB32_Premultiplied);
    picture.fill(QColor::fromHsv(hue, 150, 235));
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 210));
    painter.drawEllipse(300, 300, 424, 424);
    return picture;
}

std::map<std::string, MacPath> savedIcons(Program& program) {
    IconStore& store = program.managers().iconStore;
    std::map<std::string, MacPath> icons;
    for (const auto& [bundleID, hue] :
         {std::pair("com.apple.mail", 210), {"com.apple.Notes", 45}, {"com.apple.Maps", 130}}) {
        if (const auto icon = store.savePendingIcon(tile(hue), bundleID))
            icons.emplace(bundleID, *icon);
    }
    return icons;
}

/// Two backups, and an application that has moved since the first.
QQuickWindow* showBackups(Program& program) {
    QQuickWindow* const window = showTab(program, Tab::Backups);
    BackupsPage& page = *program.model().backups();
    Stagehand::waitFor([&] { return page.isLoaded(); });
    while (page.backups()->rowCount() < 3) {
        const int rows = page.backups()->rowCount();
        page.backUpNow();
        waitFor(*page.work());
        Stagehand::waitFor([&] { return page.backups()->rowCount() > rows; });
    }
    change(program,
           "UPDATE dbinfo SET value='1' WHERE key='ignore_items_update_triggers'; "
           "UPDATE items SET ordering = 99, parent_id = (SELECT max(rowid) FROM items WHERE type=3 AND "
           "parent_id=1) WHERE rowid IN (SELECT item_id FROM apps WHERE bundleid IN "
           "('com.apple.mail', 'com.apple.Maps')); "
           "UPDATE dbinfo SET value='0' WHERE key='ignore_items_update_triggers'");
    page.choose(1);
    page.choose(0);
    Stagehand::waitFor([&] { return !page.detail()->isReading(); });
    return window;
}

QQuickWindow* showFindings(Program& program) {
    QQuickWindow* const window = showTab(program, Tab::Health);
    change(program, "UPDATE dbinfo SET value='1' WHERE key='ignore_items_update_triggers'");
    const ApplyServices& with = program.managers().applyServices;
    ignoreFailure(
        with.mac.files.write(MacPath(with.mac.volume.temporaryFolder()) / "launchpad_temp.db", Bytes(4096)));
    program.model().health()->check();
    waitFor(*program.model().health()->work());
    return window;
}

/// An apply to its end, which leaves something to take back.
QQuickWindow* showApplied(Program& program) {
    PendingChangesManager& pending = program.managers().pendingChanges;
    ApplyModel& apply = *program.model().apply();
    program.model().goTo(WindowModel::Place::Fonts);
    program.delegate().discardChanges();
    Stagehand::pointAway(program.mainWindow());
    Stagehand::settled(program.mainWindow());
    pending.addIcons(savedIcons(program));
    pending.setPendingFont("Mathematical Script");
    apply.begin();
    Stagehand::waitFor([&] { return apply.stage() == ApplyModel::Stage::Plan; });
    apply.apply();
    Stagehand::waitFor([&] { return apply.stage() == ApplyModel::Stage::Result; }, kMinutes);
    return program.mainWindow();
}

QQuickWindow* showTraces(Program& program) {
    program.model().apply()->close();
    QQuickWindow* const window = showTab(program, Tab::Leave);
    program.model().leaving()->refresh();
    waitFor(*program.model().leaving()->work());
    return window;
}

} // namespace

std::vector<Scene> settingsScenes() {
    return {
        {QStringLiteral("settings-backups"), showBackups},
        {QStringLiteral("settings-restore"),
         [](Program& program) {
             QQuickWindow* const window = showBackups(program);
             Stagehand::click(QStringLiteral("backup-restore"));
             return window;
         }},
        {QStringLiteral("settings-themes"),
         [](Program& program) {
             Stagehand::click(QStringLiteral("confirm-cancel"));
             return showTab(program, Tab::Themes);
         }},
        {QStringLiteral("settings-icons-none"), [](Program& program) { return showTab(program, Tab::Icons); }},
        {QStringLiteral("settings-icons"),
         [](Program& program) {
             for (const auto& [bundleID, icon] : savedIcons(program))
                 program.managers().iconStore.transferPendingIcon(icon, bundleID);
             PreferencesPage& page = *program.model().preferences();
             page.readShapes();
             Stagehand::waitFor([&] { return page.shapes()->count() > 0; });
             page.setCut(1, true);
             return showTab(program, Tab::Icons);
         }},
        {QStringLiteral("settings-health"), [](Program& program) { return showTab(program, Tab::Health); }},
        {QStringLiteral("settings-findings"), showFindings},
        {QStringLiteral("settings-mend"),
         [](Program& program) {
             QQuickWindow* const window = showFindings(program);
             Stagehand::click(QStringLiteral("health-mend"));
             return window;
         }},
        {QStringLiteral("settings-mended"),
         [](Program& program) {
             Stagehand::click(QStringLiteral("confirm-go"));
             waitFor(*program.model().health()->work());
             return showTab(program, Tab::Health);
         }},
        {QStringLiteral("apply-applied"), showApplied},
        {QStringLiteral("settings-leave"), showTraces},
        {QStringLiteral("settings-leave-question"),
         [](Program& program) {
             QQuickWindow* const window = showTab(program, Tab::Leave);
             Stagehand::click(QStringLiteral("leave-take-back"));
             return window;
         }},
        {QStringLiteral("settings-left"), [](Program& program) {
             Stagehand::click(QStringLiteral("confirm-go"));
             waitFor(*program.model().leaving()->work());
             return showTab(program, Tab::Leave);
         }}};
}

} // namespace tavrik
