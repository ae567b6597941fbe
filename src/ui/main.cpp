#include "app/Host.h"
#include "app/VersionGate.h"
#include "platform/Mac.h"
#include "platform/Threads.h"
#include "ui/AlertWindow.h"
#include "ui/InterfaceFont.h"
#include "ui/Language.h"
#include "ui/Program.h"
#include "ui/models/WindowAlerts.h"

#include <QGuiApplication>
#include <QQuickStyle>

#include <cstdio>

namespace {

using namespace tavrik;

int refuseToStart(WindowAlerts& alerts, const std::string& sentence) {
    std::fprintf(stderr, "%s\n", sentence.c_str());
    const AlertWindow window(alerts);
    alerts.ask({.title = "Tavrik cannot start", .text = sentence, .buttons = {"Quit"}});
    return 1;
}

bool mayRun(MacHost& host, WindowAlerts& alerts) {
    const AlertWindow window(alerts);
    return passesVersionGate(host.mac().machine, alerts);
}

} // namespace

int main(int argc, char** argv) {
    declareMainThread();
    findPlugins();
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("Tavrik"));
    QGuiApplication::setApplicationVersion(QStringLiteral(TAVRIK_VERSION));
    QQuickStyle::setStyle(QStringLiteral("Basic")); // the components bring their own looks

    useInterfaceFont();
    const Language language;

    WindowAlerts alerts;
    const auto host = openHost(alerts);
    if (!host)
        return refuseToStart(alerts, host.error().description);
    if (!mayRun(**host, alerts))
        return 1;
    const auto program = Program::open(**host, alerts);
    if (!program)
        return refuseToStart(alerts, program.error().description);
    (*program)->start();
    return QGuiApplication::exec();
}
