#include "app/Managers.h"
#include "bench/BenchMac.h"
#include "bench/SamplePictures.h"
#include "platform/Png.h"
#include "themes/IconMatcher.h"

#include <QCoreApplication>
#include <QFile>
#include <QPainter>

#include <benchmark/benchmark.h>

namespace tavrik::bench {
namespace {

/// For the way to the main thread, which goes by it.
struct Application {
    int count = 1;
    char name[6] = "bench";
    char* arguments[2] = {name, nullptr};
    QCoreApplication application{count, arguments};
};

/// The drawn icon, told apart by a corner.
Bytes icon(int number) {
    QImage picture = drawnPicture(1024);
    QPainter(&picture).fillRect(0, 0, 8, 8, QColor::fromRgb(static_cast<QRgb>(number)));
    return *png::encode(picture);
}

/// A Mac with so many applications, and a theme with an icon for each.
struct ThemedMac : Application {
    explicit ThemedMac(int rows) {
        furnishWithRows(folder.path(), rows);
        practice.emplace(folder.path());
        managers.emplace(practice->mac());
        managers->themes.open();
        std::map<std::string, Bytes> icons;
        for (const ApplicationInfo& app : managers->apps.loadApplications())
            icons.emplace(app.bundleID + ".png", icon(static_cast<int>(icons.size())));
        const auto made = managers->themes.createTheme("Ocean", icons);
        if (!made)
            std::abort();
        theme = *made;
    }

    void apply() {
        if (managers->themes.applyTheme(theme).applied == 0)
            std::abort();
    }

    const bool isSilent = (setLogStream(nullptr), true);
    Folder folder;
    std::optional<practice::PracticeMac> practice;
    std::optional<Managers> managers;
    Theme theme;
};

/// From the theme's icons to pending icons on the disk, flushed and staged; and again, when all are there.
void applyTheme(benchmark::State& state) {
    ThemedMac mac(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        mac.apply();
        state.PauseTiming();
        mac.managers->iconCache.waitForThumbnails();
        mac.managers->pendingChanges.clearAllPendingChanges();
        state.ResumeTiming();
    }
}

void applyThemeAgain(benchmark::State& state) {
    ThemedMac mac(static_cast<int>(state.range(0)));
    mac.apply();
    for (auto _ : state)
        mac.apply();
}

/// The same pictures read, scaled and written by Qt, one after the other, unflushed and unstaged.
void applyThemeByQt(benchmark::State& state) {
    const Folder folder;
    const QString file = QString::fromStdString(folder.path().string() + "/icon.png");
    const Bytes content = icon(1);
    for (auto _ : state) {
        for (int number = 0; number < state.range(0); ++number) {
            const QImage picture = QImage::fromData(QByteArrayView(content));
            picture.scaled(1024, 1024, Qt::KeepAspectRatio, Qt::SmoothTransformation).save(file, "png");
        }
    }
}

/// 50 themes of 20 icons each.
void loadThemes(benchmark::State& state) {
    ThemedMac mac(10);
    std::map<std::string, Bytes> icons;
    for (int number = 0; number < 20; ++number)
        icons.emplace("com.example.app" + std::to_string(number) + ".png", Bytes(1024));
    for (int number = 0; number < 50; ++number) {
        if (!mac.managers->themes.createTheme("Ocean " + std::to_string(number), icons))
            std::abort();
    }
    for (auto _ : state)
        mac.managers->themes.loadThemes();
}

/// 5,000 files, a tenth of which fit one of 300 applications.
void matchIcons(benchmark::State& state) {
    std::vector<ApplicationInfo> apps(300);
    std::vector<std::string> files;
    const FontReplacer fonts;
    const std::array words = {"harbour", "lantern", "quill", "ember", "meridian",
                              "atlas",   "tide",    "notes", "drive", "chess"};
    const auto name = [&](std::size_t number) {
        return std::string(words[number % 10]) + " " + words[number / 10 % 10] + " " + words[number / 100 % 10];
    };
    for (std::size_t number = 0; number < apps.size(); ++number) {
        apps[number].name = name(number);
        apps[number].bundleID = "com.example.app" + std::to_string(number);
    }
    for (std::size_t number = 0; number < 5'000; ++number)
        files.push_back(number % 10 == 0 ? name(number / 10) + ".svg"
                                         : name(number) + " " + name(number / 7) + ".svg");
    for (auto _ : state)
        benchmark::DoNotOptimize(tavrik::matchIcons(files, apps, fonts));
}

BENCHMARK(applyTheme)->Arg(300)->Arg(1000)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(applyThemeAgain)->Arg(300)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(applyThemeByQt)->Arg(300)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(loadThemes)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(matchIcons)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tavrik::bench
