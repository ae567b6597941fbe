#include "app/Managers.h"
#include "bench/BenchMac.h"
#include "platform/FileManager.h"
#include "platform/RecordingClock.h"

#include <benchmark/benchmark.h>

namespace tavrik::bench {
namespace {

/// A whole snapshot of a Mac whose titles are styled: read, cleaned, sealed, written, read again and rotated.
/// In virtual time, so that names of the same second cost no wait.
void snapshot(benchmark::State& state) {
    const Folder folder;
    furnishWithRows(folder.path(), static_cast<int>(state.range(0)), practice::TitleStyle::styled);
    setLogStream(nullptr);
    RecordingClock clock;
    practice::PracticeMac mac(folder.path(), {.clock = &clock});
    Managers managers(mac.mac());
    managers.settings.setBackupRetentionCount(1);
    for (auto _ : state) {
        if (!managers.backups.createBackup())
            state.SkipWithError("no backup was made");
    }
}

BENCHMARK(snapshot)->Arg(300)->Arg(50'000)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tavrik::bench
