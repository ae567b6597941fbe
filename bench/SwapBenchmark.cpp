#include "bench/BenchMac.h"
#include "platform/FileManager.h"
#include "practice/furnish/LaunchpadDatabaseBuilder.h"

#include <benchmark/benchmark.h>

namespace tavrik::bench {
namespace {

/// Applications without bundles, 35 on a page: a swap looks at their rows only.
void writeRows(const HostPath& file, std::int64_t rows) {
    practice::LaunchpadDatabaseBuilder builder(file);
    practice::LaunchpadRow page{};
    for (std::int64_t row = 0; row < rows; ++row) {
        if (row % 35 == 0)
            page = builder.addPage();
        const std::string number = std::to_string(row);
        builder.addApp(page, {"Application " + number, "com.example.n" + number, Bytes(700), {}, {}});
    }
    if (!builder.finish())
        std::abort();
}

void swapRows(benchmark::State& state) {
    const Folder folder;
    Catalogue managers(folder.path());
    const MacPath file = managers.database.launchpadDatabasePath();
    if (!managers.practice.mac().files.createFolder(file.parent()))
        std::abort();
    writeRows(managers.practice.mac().volume.hostPath(file), state.range(0));
    const RowID first = managers.database.appEntries("com.example.n0").front().rowID;
    const RowID second =
        managers.database.appEntries("com.example.n" + std::to_string(state.range(0) - 1)).front().rowID;
    // As the Dock does: with the file held open, no swap is the last to close it.
    auto dock =
        sqlite::Connection::open(managers.practice.mac().volume.hostPath(file), sqlite::OpenMode::readWrite);
    if (!dock || !dock->execute("SELECT count(*) FROM dbinfo"))
        std::abort();
    for (auto _ : state) {
        if (!managers.database.swapItemPlacement(first, second))
            state.SkipWithError("the swap failed");
    }
}

BENCHMARK(swapRows)->Arg(300)->Arg(50'000)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tavrik::bench
