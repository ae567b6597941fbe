#include "bench/BenchMac.h"

#include <benchmark/benchmark.h>

namespace tavrik::bench {
namespace {

/// Settings that hold so many mappings.
struct FilledSettings {
    explicit FilledSettings(std::int64_t entries) : mac(folder.path()), settings(mac.mac()) {
        setLogStream(nullptr);
        plist::Dictionary mappings;
        for (std::int64_t entry = 0; entry < entries; ++entry)
            mappings["com.example.application" + std::to_string(entry)] = plist::Dictionary{
                {"originalRowID", entry}, {"tavrikRowID", entry + 1000}, {"createdDate", Date{8e8}}};
        settings.saveSettings({{"TavrikMappings", mappings}});
    }

    Folder folder;
    practice::PracticeMac mac;
    SettingsManager settings;
};

void settingsSetter(benchmark::State& state) {
    FilledSettings filled(state.range(0));
    std::int64_t row = 0;
    for (auto _ : state)
        filled.settings.saveMapping("com.example.application0", RowID{++row}, RowID{7});
}

/// 10,000 getters a round.
void settingsGetters(benchmark::State& state) {
    FilledSettings filled(state.range(0));
    const std::string bundleID = "com.example.application0";
    for (auto _ : state) {
        for (int getter = 0; getter < 10'000; ++getter)
            benchmark::DoNotOptimize(filled.settings.getMapping(bundleID));
    }
}

BENCHMARK(settingsSetter)->Arg(1)->Arg(300)->Arg(5'000)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(settingsGetters)->Arg(1)->Arg(300)->Arg(5'000)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tavrik::bench
