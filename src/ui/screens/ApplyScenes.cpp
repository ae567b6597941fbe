#include "platform/Alerts.h"
#include "ui/Program.h"
#include "ui/models/WindowAlerts.h"
#include "ui/screens/Scene.h"
#include "ui/screens/Stagehand.h"

#include <QQuickWindow>

#include <thread>

namespace tavrik {

namespace {

QQuickWindow* showPlan(Program& program) {
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

/// As in the middle of an apply; the next scene ends it.
QQuickWindow* showProgress(Program& program) {
    program.model().apply()->close();
    ProgressOverlayManager& progress = program.managers().progress;
    progress.show(program.mainWindow(), 12);
    progress.update("Conjuring icons...", 5);
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
        {QStringLiteral("apply-plan"), showPlan},         {QStringLiteral("apply-plan-details"), showDetails},
        {QStringLiteral("apply-progress"), showProgress}, {QStringLiteral("apply-question"), showQuestion},
        {QStringLiteral("apply-welcome"), showWelcome},   {QStringLiteral("apply-notice"), showNotice},
    };
}

} // namespace tavrik
