#include "platform/Alerts.h"
#include "platform/FileManager.h"
#include "platform/Mac.h"
#include "platform/Volume.h"
#include "platform/practice/Layout.h"
#include "platform/practice/PropertyListFile.h"
#include "ui/Program.h"
#include "ui/models/WindowAlerts.h"
#include "ui/screens/Scene.h"
#include "ui/screens/Stagehand.h"

#include <QQuickWindow>

#include <thread>

namespace tavrik {

namespace {

QQuickWindow* showRefusal(Program& program) {
    const Mac& mac = program.managers().applyServices.mac;
    const plist::Array places{(mac.volume.home() / "Library/Preferences").string(), "/Applications"};
    ignoreFailure(practice::writePropertyList(mac.files, practice::kRefusedPaths, places));
    program.model().setShowsPreview(false);
    program.model().privacy()->look();
    Stagehand::waitFor([&] { return !program.model().privacy()->text().isEmpty(); });
    return program.mainWindow();
}

QQuickWindow* showRefusedPlan(Program& program) {
    program.managers().pendingChanges.setPendingFont("Small Caps");
    program.model().apply()->begin();
    Stagehand::waitFor([&] { return program.model().apply()->stage() == ApplyModel::Stage::Plan; });
    return program.mainWindow();
}

QQuickWindow* showPlan(Program& program) {
    ignoreFailure(program.managers().applyServices.mac.files.remove(practice::kRefusedPaths));
    program.model().privacy()->look();
    Stagehand::waitFor([&] { return program.model().privacy()->text().isEmpty(); });
    program.model().apply()->close();
    program.model().setShowsPreview(false);
    program.managers().pendingChanges.setPendingFont("Small Caps");
    program.model().apply()->begin();
    Stagehand::waitFor([&] { return program.model().apply()->stage() == ApplyModel::Stage::Plan; });
    return program.mainWindow();
}

QQuickWindow* showDetails(Program& program) {
    Stagehand::click(QStringLiteral("apply-details"));
    return program.mainWindow();
}

/// What an apply asks, where one of the applications runs; the next scene answers.
QQuickWindow* showCloseApps(Program& program) {
    ApplyModel& apply = *program.model().apply();
    if (apply.runningApps().isEmpty())
        return program.mainWindow();
    apply.apply();
    Stagehand::waitFor([&] { return program.model().alerts()->isShown(); });
    return program.mainWindow();
}

QQuickWindow* showCancelled(Program& program) {
    if (!program.model().alerts()->isShown())
        return program.mainWindow();
    program.model().alerts()->answer(1);
    Stagehand::waitFor([&] { return program.model().apply()->stage() == ApplyModel::Stage::Result; });
    return program.mainWindow();
}

/// As in the middle of a refresh; the next scene ends it.
QQuickWindow* showProgress(Program& program) {
    program.model().apply()->close();
    ProgressOverlayManager& progress = program.managers().progress;
    progress.show(program.mainWindow(), 12);
    progress.update("Restarting Dock...", 5);
    return program.mainWindow();
}

QQuickWindow* showQuestion(Program& program) {
    program.managers().progress.hide();
    Stagehand::waitFor([&] { return !program.delegate().isBlocked(); });
    auto* const alerts = program.model().alerts();
    // Whoever asks waits for the answer, which the next scene gives.
    std::thread([alerts] {
        alerts->ask({.title = "You have unsaved changes",
                     .text = "Do you want to abandon your changes or return to the app?",
                     .buttons = {"Return", "Abandon"},
                     .style = AlertStyle::warning});
    }).detach();
    Stagehand::waitFor([alerts] { return alerts->isShown(); });
    return program.mainWindow();
}

QQuickWindow* showWelcome(Program& program) {
    program.model().alerts()->answer(0);
    program.model().ask(WindowModel::Request::Welcome);
    Stagehand::waitFor([] { return Stagehand::find(QStringLiteral("welcome-start")) != nullptr; });
    return program.mainWindow();
}

QQuickWindow* showNotice(Program& program) {
    Stagehand::press(program.mainWindow(), Qt::Key_Escape);
    Stagehand::waitFor([] { return Stagehand::find(QStringLiteral("welcome-start")) == nullptr; });
    program.model().edits()->discard();
    return program.mainWindow();
}

} // namespace

std::vector<Scene> applyScenes() {
    return {
        {QStringLiteral("apply-refused"), showRefusal},
        {QStringLiteral("apply-refused-plan"), showRefusedPlan},
        {QStringLiteral("apply-plan"), showPlan},
        {QStringLiteral("apply-plan-details"), showDetails},
        {QStringLiteral("apply-close-apps"), showCloseApps},
        {QStringLiteral("apply-cancelled"), showCancelled},
        {QStringLiteral("apply-progress"), showProgress},
        {QStringLiteral("apply-question"), showQuestion},
        {QStringLiteral("apply-welcome"), showWelcome},
        {QStringLiteral("apply-notice"), showNotice},
    };
}

} // namespace tavrik
