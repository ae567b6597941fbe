#include "app/practice/PracticeHost.h"
#include "bench/ManyApps.h"
#include "platform/Log.h"
#include "platform/Threads.h"
#include "practice/art/IconArtist.h"
#include "practice/furnish/IconBuilder.h"
#include "ui/Program.h"
#include "ui/models/WindowAlerts.h"
#include "ui/screens/Stagehand.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <vector>

namespace tavrik::bench {
namespace {

constexpr const char* kEmptyWindow = "import QtQuick.Controls.Basic\n"
                                     "ApplicationWindow { width: 1120; height: 740; visible: true }\n";

double milliseconds(const QElapsedTimer& since) {
    return static_cast<double>(since.nsecsElapsed()) / 1e6;
}

/// Each application with an icon of usual sizes.
int furnish(const HostPath& root, int apps) {
    constexpr int kLargestIcon = 512; // pixels
    furnishWithApps(root, apps, programsFolder() / "practice-tool");
    std::vector<practice::IconPainter> painters;
    for (int hue = 0; hue < 360; hue += 30) {
        painters.push_back([hue](int size) {
            return practice::drawIcon({.top = QColor::fromHsv(hue, 120, 240),
                                       .bottom = QColor::fromHsv(hue, 220, 160),
                                       .glyph = practice::glyphNames().front()},
                                      size);
        });
    }
    const std::vector<Bytes> icons = practice::buildIcons(painters, kLargestIcon);
    std::size_t next = 0;
    for (const auto& bundle : std::filesystem::directory_iterator((root / "Applications").string())) {
        if (!bundle.path().filename().string().starts_with("Sample "))
            continue;
        const std::filesystem::path resources = bundle.path() / "Contents/Resources";
        std::filesystem::create_directories(resources);
        const Bytes& icon = icons[next++ % icons.size()];
        std::ofstream file(resources / "icon.icns", std::ios::binary);
        if (!file.write(reinterpret_cast<const char*>(icon.data()), static_cast<std::streamsize>(icon.size())))
            return 1;
    }
    return 0;
}

/// From `start` to the first picture of an empty window.
int showEmptyWindow(const QElapsedTimer& start) {
    QQmlApplicationEngine engine;
    engine.loadData(kEmptyWindow);
    auto* const window = qobject_cast<QQuickWindow*>(engine.rootObjects().value(0));
    if (!window || window->grabWindow().isNull())
        return 1;
    std::printf("empty window %.1f ms\n", milliseconds(start));
    return 0;
}

/// Frames of 40 points each, from top to bottom and back: what came in meanwhile, the rows, the picture.
void scroll(QQuickWindow& window, QQuickItem& list) {
    constexpr int kFrames = 600;
    constexpr double kStep = 40;
    std::vector<double> frames;
    const double end = list.property("contentHeight").toDouble() - list.height();
    double place = 0;
    double step = kStep;
    for (int frame = 0; frame < kFrames; ++frame) {
        QElapsedTimer timer;
        timer.start();
        if (place + step < 0 || place + step > end)
            step = -step;
        list.setProperty("contentY", place += step);
        QCoreApplication::processEvents();
        if (window.grabWindow().isNull())
            return;
        frames.push_back(milliseconds(timer));
        QTest::qSleep(2); // decoding goes on
    }
    std::ranges::sort(frames);
    std::printf("frame median %.1f ms, p99 %.1f ms, longest %.1f ms\n", frames[frames.size() / 2],
                frames[frames.size() * 99 / 100], frames.back());
}

enum class Then { end, scroll };

/// From `start` to the first picture of the list.
int showList(const HostPath& root, const QElapsedTimer& start, Then then) {
    WindowAlerts alerts;
    const auto host = openPracticeMac(root, alerts);
    if (!host)
        return 1;
    const auto program = Program::open(**host, alerts);
    if (!program)
        return 1;
    (*program)->start();
    (*program)->model().endFirstStart();
    auto& apps = *(*program)->model().applications()->userApps();
    if (!Stagehand::waitFor([&] { return apps.state() == ApplicationsList::Ready; }, 60'000))
        return 1;
    QQuickWindow& window = *(*program)->mainWindow();
    if (window.grabWindow().isNull())
        return 1;
    std::printf("list of %d %.1f ms\n", apps.shownCount(), milliseconds(start));
    if (then == Then::scroll)
        scroll(window, *Stagehand::find(QStringLiteral("appList")));
    return 0;
}

} // namespace
} // namespace tavrik::bench

/// Times the window, in software and on no screen: window_work empty, or list or scroll FOLDER of a
/// practice Mac, which furnish FOLDER APPS makes.
int main(int argc, char** argv) {
    using namespace tavrik;
    QElapsedTimer start;
    start.start();
    const std::string_view what = argc > 1 ? argv[1] : "";
    if (what == "furnish" && argc == 4) {
        const QCoreApplication application(argc, argv);
        return bench::furnish(HostPath(argv[2]), std::atoi(argv[3]));
    }
    declareMainThread();
    setLogStream(nullptr);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    QQuickStyle::setStyle(QStringLiteral("Basic"));
    if (what == "empty")
        return bench::showEmptyWindow(start);
    if (what == "list" && argc == 3)
        return bench::showList(HostPath(argv[2]), start, bench::Then::end);
    if (what == "scroll" && argc == 3)
        return bench::showList(HostPath(argv[2]), start, bench::Then::scroll);
    std::fprintf(stderr, "Usage: window_work empty | furnish FOLDER APPS | list FOLDER | scroll FOLDER\n");
    return 2;
}
