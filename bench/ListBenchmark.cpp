#include "app/Managers.h"
#include "app/SharedCoordinators.h"
#include "bench/BenchMac.h"
#include "icons/list/ApplicationsModel.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

#include <array>

namespace tavrik::bench {
namespace {

/// A list of so many applications, three icons for each, with its model. Their names differ in their first and
/// in their last letters.
struct FilledList {
    explicit FilledList(int apps) {
        setLogStream(nullptr);
        if (!practice::furnish(folder.path(), {}))
            std::abort();
        practice.emplace(folder.path());
        managers.emplace(practice->mac());
        lists.emplace(*managers);
        constexpr std::array kNames{"Atlas", "Beacon", "Cinder", "Driftwood", "Éclair", "Ferrule", "Gantry"};
        for (int app = 0; app < apps; ++app) {
            ApplicationInfo info;
            info.name = std::string(kNames.at(static_cast<std::size_t>(app) % kNames.size())) + " " +
                        std::to_string(app);
            info.bundleID = "org.example.app" + std::to_string(app);
            info.path = MacPath("/Applications") / (info.name + ".app");
            for (int icon = 0; icon < 3; ++icon)
                reading.themeIcons[info.bundleID].emplace_back("/Themes/" + std::to_string(icon) + "/" +
                                                               info.bundleID + ".png");
            reading.apps.push_back(std::move(info));
        }
        lists->userApps.load(reading);
        lists->userApps.setTable(&model);
    }

    ~FilledList() { lists->userApps.setTable(nullptr); }

    int argumentCount = 0;
    QCoreApplication application{argumentCount, nullptr};
    Folder folder;
    std::optional<practice::PracticeMac> practice;
    std::optional<Managers> managers;
    std::optional<SharedCoordinators> lists;
    CatalogueReading reading;
    ApplicationsModel model;
};

/// A letter typed, one more, and all taken back: each step from the text to the rows of the model.
void search(benchmark::State& state) {
    FilledList list(static_cast<int>(state.range(0)));
    constexpr std::array kTyped{"e", "ec", "7", ""};
    for (std::size_t step = 0; auto _ : state)
        list.lists->filters.setSearchText(kTyped.at(step++ % kTyped.size()));
}

/// All out, all back in.
void filter(benchmark::State& state) {
    FilledList list(static_cast<int>(state.range(0)));
    for (bool shows = true; auto _ : state) {
        list.lists->filters.setShowOnlyDockItems(shows);
        shows = !shows;
    }
}

/// Every row to another place.
void turnOrder(benchmark::State& state) {
    FilledList list(static_cast<int>(state.range(0)));
    for (auto order = SortOrder::descending; auto _ : state) {
        list.lists->userApps.setSortOrder(order);
        order = order == SortOrder::ascending ? SortOrder::descending : SortOrder::ascending;
    }
}

/// A reading in which nothing is new.
void reload(benchmark::State& state) {
    FilledList list(static_cast<int>(state.range(0)));
    for (auto _ : state)
        list.lists->userApps.load(list.reading);
}

BENCHMARK(search)->Arg(300)->Arg(1'000)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(filter)->Arg(300)->Arg(1'000)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(turnOrder)->Arg(300)->Arg(1'000)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(reload)->Arg(300)->Arg(1'000)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tavrik::bench
