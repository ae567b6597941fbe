#include "platform/Mac.h"
#include "platform/UserDefaults.h"
#include "remote/Endpoint.h"
#include "ui/Program.h"
#include "ui/screens/SampleServer.h"
#include "ui/screens/Scene.h"
#include "ui/screens/Stagehand.h"

#include <QJsonArray>
#include <QQuickWindow>

#include <memory>
#include <optional>
#include <utility>

namespace tavrik {

namespace {

const QString kNotes =
    QStringLiteral("Themes\n"
                   "\u2022 Pictures of a folder are matched with apps in half the time.\n"
                   "\u2022 A theme can be exported together with its previews.\n\n"
                   "Fonts\n"
                   "\u2022 Four more alphabets, two of them with small letters.\n"
                   "\u2022 Names in Launchpad folders are no longer cut where a letter takes two places.\n\n"
                   "Backups\n"
                   "\u2022 The drawing of a backup shows folders with what is in them.\n"
                   "\u2022 A restore tells beforehand which apps have come or gone.\n\n"
                   "Mended\n"
                   "\u2022 The Dock kept an old tile when an app was renamed during an apply.\n"
                   "\u2022 The window remembers where it was on a second screen.");

QJsonObject release(const char* minimum) {
    return {{QStringLiteral("version"), QStringLiteral("1.4.2")},
            {QStringLiteral("minimumSystem"), QLatin1String(minimum)},
            {QStringLiteral("notes"), kNotes},
            {QStringLiteral("size"), 24'300'000},
            {QStringLiteral("link"), QStringLiteral("https://downloads.tavrik.example/Tavrik-1.4.2.dmg")}};
}

void setAddress(Program& program, std::optional<plist::Value> address) {
    ignoreFailure(program.managers().applyServices.mac.defaults.set(kUpdatesAddressKey, std::move(address)));
}

/// From now on the server has these releases.
void publish(Program& program, SampleServer& server, const QJsonArray& releases) {
    setAddress(program, plist::Value(server.address(RemoteKind::updates)));
    server.say(RemoteKind::updates, {{QStringLiteral("releases"), releases}});
}

/// The person asks, and the answer comes.
QQuickWindow* check(Program& program, SampleServer& server, const QJsonArray& releases) {
    publish(program, server, releases);
    program.model().updates()->offer()->check();
    Stagehand::waitFor([&] { return !program.model().updates()->isChecking(); });
    return program.mainWindow();
}

/// As if the built-in address had been asked.
QQuickWindow* showTab(Program& program) {
    setAddress(program, std::nullopt);
    program.model().openSettings();
    program.model().preferences()->setTab(PreferencesPage::Tab::Updates);
    return program.settingsWindow();
}

} // namespace

std::vector<Scene> updatesScenes() {
    const auto server = std::make_shared<SampleServer>();
    return {
        {QStringLiteral("updates-question"),
         [](Program& program) {
             Stagehand::waitFor([&] { return program.model().updates()->isKnown(); });
             program.model().updates()->setWindowFree(true);
             return program.mainWindow();
         }},
        {QStringLiteral("updates-settings"),
         [](Program& program) {
             program.model().updates()->answerQuestion(false);
             return showTab(program);
         }},
        {QStringLiteral("updates-offered"),
         [server](Program& program) {
             UpdatesPage& page = *program.model().updates();
             program.settingsWindow()->close();
             publish(program, *server, {release("12")});
             page.setChecksForUpdates(true);
             Stagehand::waitFor([&] { return !page.offer()->newVersion().isEmpty(); });
             return program.mainWindow();
         }},
        {QStringLiteral("updates-available"),
         [](Program& program) {
             Stagehand::click(QStringLiteral("update-available"));
             return program.mainWindow();
         }},
        {QStringLiteral("updates-settings-found"),
         [](Program& program) {
             program.model().updates()->offer()->close();
             return showTab(program);
         }},
        {QStringLiteral("updates-other-system"),
         [server](Program& program) {
             program.settingsWindow()->close();
             return check(program, *server, {release("99.1")});
         }},
        {QStringLiteral("updates-newest"), [server](Program& program) { return check(program, *server, {}); }},
        {QStringLiteral("updates-checking"),
         [server](Program& program) {
             server->keepSilent(true);
             program.model().updates()->offer()->check();
             return program.mainWindow();
         }},
        {QStringLiteral("updates-failed"),
         [server](Program& program) {
             // The request of before ends with the network.
             program.model().updates()->setIsOff(true);
             program.model().updates()->setIsOff(false);
             server->keepSilent(false);
             return check(program, *server, {QStringLiteral("no release")});
         }},
        {QStringLiteral("updates-off"),
         [server](Program& program) {
             program.model().updates()->setIsOff(true);
             return check(program, *server, {});
         }},
        {QStringLiteral("updates-settings-off"), [](Program& program) {
             program.model().updates()->offer()->close();
             return showTab(program);
         }}};
}

} // namespace tavrik
