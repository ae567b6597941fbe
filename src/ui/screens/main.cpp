#include "app/practice/PracticeHost.h"
#include "platform/Mac.h"
#include "platform/Threads.h"
#include "ui/InterfaceFont.h"
#include "ui/Language.h"
#include "ui/Program.h"
#include "ui/models/WindowAlerts.h"
#include "ui/screens/PseudoLocale.h"
#include "ui/screens/SampleServer.h"
#include "ui/screens/Scene.h"
#include "ui/screens/Stagehand.h"

#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>
#include <QPalette>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QTemporaryDir>

#include <cstdio>

namespace {

using namespace tavrik;

QPalette darkPalette() {
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(30, 30, 32));
    palette.setColor(QPalette::WindowText, Qt::white);
    return palette;
}

bool save(const QImage& picture, const QString& file) {
    if (picture.save(file))
        return true;
    std::fprintf(stderr, "%s cannot be written.\n", qUtf8Printable(file));
    return false;
}

/// Every scene whose name begins with `wanted`.
bool draw(Program& program, const QString& folder, const QString& wanted, const QString& format) {
    for (const Scene& scene : allScenes()) {
        if (!scene.name.startsWith(wanted))
            continue;
        QQuickWindow* const window = scene.show(program);
        for (const bool isDark : {false, true}) {
            QGuiApplication::setPalette(isDark ? darkPalette() : QPalette());
            const QString suffix = isDark ? QStringLiteral("-dark") : QString();
            if (!save(Stagehand::settled(window),
                      QStringLiteral("%1/%2%3.%4").arg(folder, scene.name, suffix, format)))
                return false;
        }
        QGuiApplication::setPalette(QPalette());
    }
    return true;
}

} // namespace

/// Leaves a picture of each view, light and dark, in a folder. Works on a practice Mac of its own. Twice the
/// size with QT_SCALE_FACTOR=2.
int main(int argc, char** argv) {
    declareMainThread();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationVersion(QStringLiteral(TAVRIK_VERSION));
    QQuickStyle::setStyle(QStringLiteral("Basic"));
    useInterfaceFont();

    QCommandLineParser arguments;
    arguments.addHelpOption();
    arguments.addPositionalArgument(QStringLiteral("folder"), QStringLiteral("Where the pictures go."));
    const QCommandLineOption only(QStringLiteral("only"), QStringLiteral("Scenes that begin so."),
                                  QStringLiteral("beginning"));
    const QCommandLineOption format(QStringLiteral("format"), QStringLiteral("png or jpg."),
                                    QStringLiteral("format"), QStringLiteral("png"));
    const QCommandLineOption inLanguage(QStringLiteral("language"), QStringLiteral("In this one, as \"de\"."),
                                        QStringLiteral("code"), QStringLiteral("en"));
    const QCommandLineOption pseudo(QStringLiteral("pseudo"), QStringLiteral("With texts that are longer."));
    const QCommandLineOption mirrored(QStringLiteral("mirrored"), QStringLiteral("From right to left."));
    arguments.addOptions({only, format, inLanguage, pseudo, mirrored});
    arguments.process(application);
    if (arguments.positionalArguments().size() != 1)
        arguments.showHelp(2);
    const QString folder = arguments.positionalArguments().front();
    QDir().mkpath(folder);
    const QLocale locale(arguments.value(inLanguage));
    QLocale::setDefault(locale);
    const Language language(locale);
    PseudoLocale pseudoLocale;
    if (arguments.isSet(pseudo))
        QCoreApplication::installTranslator(&pseudoLocale);
    if (arguments.isSet(mirrored))
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);

    const QTemporaryDir place;
    WindowAlerts alerts;
    const auto host = openPracticeMac(HostPath(place.filePath(QStringLiteral("Mac")).toStdString()), alerts);
    if (!host) {
        std::fprintf(stderr, "%s\n", host.error().description.c_str());
        return 1;
    }
    // The second start: the question about the network is due.
    NetworkConsent((*host)->mac().defaults).countStart();
    const auto program = Program::open(**host, alerts, {.keys = SampleServer::keys()});
    if (!program) {
        std::fprintf(stderr, "%s\n", program.error().description.c_str());
        return 1;
    }
    (*program)->start();
    Stagehand::waitFor([&] { return !(*program)->delegate().isStarting(); });
    (*program)->model().endFirstStart();
    return draw(**program, folder, arguments.value(only), arguments.value(format)) ? 0 : 1;
}
