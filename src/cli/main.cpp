#include "app/Host.h"
#include "cli/CommandLine.h"
#include "cli/Companion.h"
#include "cli/HostCommands.h"
#include "cli/TerminalLog.h"
#include "platform/MainQueue.h"
#include "platform/SerialQueue.h"
#include "platform/Threads.h"

#include <QGuiApplication>

namespace {

/// What Qt has to say is for developers; the commands print sentences of their own.
void dropChatter(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type == QtFatalMsg || type == QtCriticalMsg)
        std::fprintf(stderr, "%s\n", qUtf8Printable(message));
}

} // namespace

int main(int argc, char** argv) {
    using namespace tavrik;
    declareMainThread();
    qInstallMessageHandler(dropChatter);

    CommandLine commands;
    declareHostCommands(commands);
    try {
        commands.parser().parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return commands.parser().exit(error) == 0 ? 0 : static_cast<int>(ExitCode::usage);
    }
    if (commands.logFile().empty()) {
        sendLogTo(commands.answersPrograms() ? stderr : stdout);
    } else if (const Status sent = sendLogToFile(commands.logFile()); !sent) {
        std::fprintf(stderr, "%s\n", sent.error().description.c_str());
        return static_cast<int>(ExitCode::refused);
    }

    // Text is drawn but no window shown: the platform without a screen serves everywhere.
    std::string arguments[] = {argv[0], "-platform", "offscreen"};
    char* argumentPointers[] = {arguments[0].data(), arguments[1].data(), arguments[2].data(), nullptr};
    int argumentCount = 3;
    findPlugins();
    QGuiApplication application(argumentCount, argumentPointers);

    ExitCode code = ExitCode::failed;
    {
        Companion companion(openHost);
        SerialQueue queue("com.tavrik.companion");
        queue.async([&] {
            code = commands.chosen().run(companion);
            MainQueue::async(&application, [] { QCoreApplication::quit(); });
        });
        QCoreApplication::exec();
    }
    return static_cast<int>(code);
}
