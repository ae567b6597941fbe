#include "backups/LaunchpadCleaning.h"
#include "bench/BenchMac.h"
#include "fonts/FontReplacer.h"
#include "platform/SqliteCopy.h"

#include <benchmark/benchmark.h>

namespace tavrik::bench {
namespace {

/// The bytes of a Launchpad database whose titles are all styled, cleaned for a backup.
void cleanLaunchpad(benchmark::State& state) {
    const Folder folder;
    furnishWithRows(folder.path(), static_cast<int>(state.range(0)), practice::TitleStyle::styled);
    Catalogue managers(folder.path());
    Mac& mac = managers.practice.mac();
    const FontReplacer replacer;
    LaunchpadCleaning cleaning(mac, managers.settings, replacer);
    const auto database = sqlite::copyOf(mac.volume.hostPath(managers.database.launchpadDatabasePath()));
    if (!database)
        std::abort();
    for (auto _ : state) {
        state.PauseTiming();
        Bytes copy = *database;
        state.ResumeTiming();
        const Bytes cleaned = cleaning.clean(std::move(copy));
        if (cleaned == *database)
            state.SkipWithError("nothing was cleaned");
    }
}

BENCHMARK(cleanLaunchpad)->Arg(300)->Arg(50'000)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tavrik::bench
