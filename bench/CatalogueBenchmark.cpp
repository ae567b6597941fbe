#include "bench/BenchMac.h"

#include <benchmark/benchmark.h>

namespace tavrik::bench {
namespace {

void catalogue(benchmark::State& state) {
    const Folder folder;
    const HostPath root = folder.path() / "mac";
    furnishWithRows(root, static_cast<int>(state.range(0)));
    Catalogue managers(root);
    for (auto _ : state)
        benchmark::DoNotOptimize(managers.apps.loadApplications());
    state.SetComplexityN(state.range(0));
}

BENCHMARK(catalogue)->Arg(300)->Arg(5'000)->Arg(50'000)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tavrik::bench
