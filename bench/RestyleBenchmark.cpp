#include "bench/BenchMac.h"
#include "fonts/FontReplacer.h"
#include "fonts/LaunchpadTitles.h"
#include "platform/Sqlite.h"

#include <benchmark/benchmark.h>

namespace tavrik::bench {
namespace {

/// The three passes of a change of style: applications, folders and backups of folders that are gone. Each page
/// serves as a folder, and each round changes every title.
void restyleLaunchpad(benchmark::State& state) {
    const Folder folder;
    furnishWithRows(folder.path(), static_cast<int>(state.range(0)));
    Catalogue managers(folder.path());
    const FontReplacer replacer;
    const HostPath file = managers.practice.mac().volume.hostPath(managers.database.launchpadDatabasePath());
    auto database = sqlite::Connection::open(file, sqlite::OpenMode::readWrite);
    if (!database || !database->execute("UPDATE groups SET title = 'Folder ' || item_id WHERE item_id IN "
                                        "(SELECT parent_id FROM items WHERE type = 4)"))
        std::abort();
    LaunchpadTitles titles(*database, managers.practice.mac().bookmarks, managers.settings, replacer);
    TitleStyle shown;
    for (auto _ : state) {
        const bool wasBold = shown && shown->fontName == "Mathematical Bold";
        const FontState style{wasBold ? "Mathematical Script" : "Mathematical Bold", true, {}};
        titles.styleApps(style.fontName);
        if (!titles.styleFolders(style, {shown}))
            state.SkipWithError("the titles could not be written");
        titles.removeOrphanedBackups();
        shown = style;
    }
}

BENCHMARK(restyleLaunchpad)->Arg(300)->Arg(50'000)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tavrik::bench
