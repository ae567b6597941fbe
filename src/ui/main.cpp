#include "app/PracticeHost.h"
#include "app/VersionGate.h"
#include "platform/Mac.h"
#include "platform/Threads.h"
#include "practice/furnish/Furnish.h"
#include "ui/Program.h"
#include "ui/models/WindowAlerts.h"

#include <QGuiApplication>
#include <QQuickStyle>
#include <QQuickWindow>

#include <cstdio>

int main(int argc, char** argv) {
    using namespace tavrik;
    declareMainThread();
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("Tavrik"));
    QQuickStyle::setStyle(QStringLiteral("Basic")); // the components bring their own looks

    WindowAlerts alerts;
    const auto host = openPracticeMac(practice::defaultRoot(), alerts);
    if (!host) {
        std::fprintf(stderr, "%s\n", host.error().description.c_str());
        return 1;
    }
    const auto program = Program::open(**host, alerts);
    if (!program) {
        std::fprintf(stderr, "%s\n", program.error().description.c_str());
        return 1;
    }
    (*program)->start();
    return QGuiApplication::exec();
}
