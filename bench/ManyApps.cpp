#include "bench/ManyApps.h"

#include "platform/PathRules.h"
#include "platform/practice/Layout.h"
#include "practice/furnish/BundleBuilder.h"
#include "practice/furnish/DockPreferencesBuilder.h"
#include "practice/furnish/Furnish.h"
#include "practice/furnish/HostFiles.h"
#include "practice/furnish/LaunchpadDatabaseBuilder.h"
#include "practice/furnish/VolumeBookmarks.h"

#include <cstdlib>

namespace tavrik::bench {

namespace {

using namespace practice;

constexpr int kAppsOnPage = 35;
constexpr int kAppsForEachTile = 5;
constexpr Date kInstalled{790'000'000};
constexpr const char* kCategory = "public.app-category.utilities";
constexpr int kLargestIcon = 32; // its drawing is none of what is measured

std::string nameOf(int app) {
    return "Sample " + std::to_string(10'000 + app).substr(1);
}

void check(const Status& outcome) {
    if (!outcome)
        std::abort();
}

Bytes bookmarkTo(const TreeWriter& tree, const MacPath& bundle) {
    auto bookmark = systemBookmark(tree.root(), bundle, kInstalled);
    if (!bookmark)
        std::abort();
    return std::move(*bookmark);
}

} // namespace

std::vector<std::string> manyApps(int apps) {
    std::vector<std::string> identifiers;
    for (int app = 0; app < apps; ++app)
        identifiers.push_back("org.example.sample" + std::to_string(10'000 + app).substr(1));
    return identifiers;
}

void furnishWithApps(const HostPath& root, int apps, const HostPath& tool) {
    check(furnish(root, {.tool = tool, .dock = {}}, {.largestIcon = kLargestIcon}));
    TreeWriter tree(root);
    const HostPath database = tree.host(launchpadDatabasePath(kTemporaryFolder));
    for (const char* suffix : {"", "-wal", "-shm"})
        check(removeHostTree(HostPath(database.string() + suffix)));
    const MacPath dock = dockPreferencesPath(kHome);
    check(removeHostTree(tree.host(dock)));

    LaunchpadDatabaseBuilder launchpad(database);
    DockPreferencesBuilder preferences;
    LaunchpadRow page{};
    const auto identifiers = manyApps(apps);
    for (int app = 0; app < apps; ++app) {
        const std::string name = nameOf(app);
        const std::string& identifier = identifiers[static_cast<std::size_t>(app)];
        const MacPath bundle = MacPath("/Applications") / (name + ".app");
        writeBundleInfo(tree, bundle,
                        {name, identifier, "program", "1.0", kCategory, "", "", plist::Format::xml});
        tree.file(bundle / "Contents/MacOS/program", bytesOf(placeholderProgram(name)), 0755);
        check(tree.status());

        const Bytes bookmark = bookmarkTo(tree, bundle);
        if (app % kAppsOnPage == 0)
            page = launchpad.addPage();
        launchpad.addApp(page, {name, identifier, bookmark, kInstalled, kCategory});
        if (app % kAppsForEachTile == 0)
            preferences.addApp({.label = name,
                                .bundleID = identifier,
                                .url = "file://" + MacPath("/Applications").string() + "/Sample%20" +
                                       name.substr(name.rfind(' ') + 1) + ".app/",
                                .bookmark = bookmark,
                                .modified = kInstalled,
                                .folderModified = kInstalled});
    }
    check(launchpad.finish());
    tree.propertyList(dock, preferences.build(), plist::Format::binary, 0600);
    check(tree.status());
}

} // namespace tavrik::bench
