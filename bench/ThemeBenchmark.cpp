#include "app/Managers.h"
#include "bench/BenchMac.h"
#include "bench/SamplePictures.h"
#include "platform/Png.h"
#include "themes/ThemeExchange.h"
#include "themes/ThemeFile.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

namespace tavrik::bench {
namespace {

constexpr int kIcons = 300;
const Theme kTheme{.themeID = "abcdefgh01234567", .name = "Ocean", .createdDate = {1}};

template<typename T>
T need(Result<T> result) {
    if (!result)
        std::abort();
    return std::move(*result);
}

ThemePackage package() {
    const Bytes icon = need(png::encode(drawnPicture(1024)));
    ThemePackage made{.theme = kTheme, .icons = {}};
    for (int number = 0; number < kIcons; ++number)
        made.icons["com.example.app" + std::to_string(number) + ".png"] = icon;
    return made;
}

/// For the way to the main thread, which goes by it.
struct Application {
    int count = 1;
    char name[6] = "bench";
    char* arguments[2] = {name, nullptr};
    QCoreApplication application{count, arguments};
};

/// A practice Mac with the theme in its library, silent.
struct Library : Application {
    Library() : practice(folder.path()) { need(themes.library().create(kTheme, package().icons)); }

    const bool isSilent = (setLogStream(nullptr), true);
    Folder folder;
    practice::PracticeMac practice;
    Managers managers{practice.mac()};
    ThemeManager& themes = managers.themes;
    ThemeExchange exchange{practice.mac(), themes};
};

/// From the icons on the disk to the file's bytes; each icon is decoded on the way.
void exportTheme(benchmark::State& state) {
    const Library library;
    for (auto _ : state)
        benchmark::DoNotOptimize(need(library.exchange.exportTheme(kTheme)));
}

/// From the file's bytes to a theme in the library, flushed; each icon is decoded on the way.
void importTheme(benchmark::State& state) {
    Library library;
    const Bytes file = need(library.exchange.exportTheme(kTheme));
    for (auto _ : state) {
        const Theme theme = need(library.exchange.importTheme(file, "Ocean.tavriktheme"));
        state.PauseTiming();
        need(library.themes.library().remove(theme.themeID));
        state.ResumeTiming();
    }
}

/// In memory, from content to content.
void writeThemeFileOnly(benchmark::State& state) {
    const ThemePackage icons = package();
    for (auto _ : state)
        benchmark::DoNotOptimize(need(writeThemeFile(icons)));
}

void readThemeFileOnly(benchmark::State& state) {
    const Bytes file = need(writeThemeFile(package()));
    for (auto _ : state)
        benchmark::DoNotOptimize(need(readThemeFile(file, "Ocean.tavriktheme")));
}

BENCHMARK(exportTheme)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(importTheme)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(writeThemeFileOnly)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(readThemeFileOnly)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tavrik::bench
