#include "practice/furnish/SampleLaunchpad.h"

#include "platform/PathRules.h"
#include "platform/practice/Layout.h"
#include "practice/furnish/LaunchpadDatabaseBuilder.h"
#include "practice/furnish/ProgramBundle.h"
#include "practice/furnish/SampleApps.h"
#include "practice/furnish/VolumeBookmarks.h"

#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace tavrik::practice {

const MacPath kStaleCopy = kHome / "Downloads/Ferrule copy.app";
const MacPath kDepartedApp{"/Applications/Windlass.app"};

namespace {

constexpr Date kWatchedSince{739'756'860};
constexpr std::int64_t kLastEvent = 0x0523'4F6A'9021;

/// Fills a database from the table of applications.
class Launchpad {
public:
    explicit Launchpad(TreeWriter& tree)
        : m_tree(tree),
          m_builder(tree.host(launchpadDatabasePath(kTemporaryFolder))) {
        const auto byPage = [](const SampleApp& one, const SampleApp& other) { return one.page < other.page; };
        const int pages = std::ranges::max_element(sampleApps(), byPage)->page;
        for (int page = 1; page <= pages; ++page)
            m_pages.push_back(m_builder.addPage());
    }

    void addSamples() {
        for (const SampleApp& app : sampleApps())
            m_builder.addApp(parentOf(app), rowOf(app));
    }

    void addProgram() {
        m_builder.addApp(m_pages.front(),
                         {kProgramName, kBundleIdentifier, bookmark(kProgramBundle, programModifiedDate()),
                          programModifiedDate(), kProgramCategory});
    }

    /// What long-used Macs gather.
    void addLeftovers() {
        const SampleApp& original = sampleApp(kCopiedApp);
        LaunchpadApp copy = rowOf(original);
        copy.title = kStaleCopy.stem();
        copy.bookmark = bookmark(kStaleCopy, createdDate(original));
        m_builder.addApp(m_pages.back(), copy);

        LaunchpadApp departed{
            kDepartedApp.stem(), "org.example.windlass", {}, createdDate(original), original.category};
        departed.bookmark = taken(deadBookmark(m_tree.root(), kDepartedApp, departed.modified));
        m_builder.addApp(m_pages.back(), departed);
    }

    void addSources() {
        for (const MacPath& folder :
             {MacPath("/Applications"), MacPath("/System/Applications"), kHome / "Applications"})
            m_builder.addSource({bookmark(folder, kWatchedSince), kLastEvent});
    }

    void finish() { m_tree.note(m_builder.finish()); }

private:
    LaunchpadRow parentOf(const SampleApp& app) {
        if (app.page == 0)
            return kUnshownPage;
        const LaunchpadRow page = m_pages[static_cast<std::size_t>(app.page) - 1];
        const std::string title = app.folder;
        if (title.empty())
            return page;
        const auto [folder, isNew] = m_folders.try_emplace(std::pair(app.page, title));
        if (isNew)
            folder->second = m_builder.addFolder(page, title, title == kSystemFolderTitle ? 1 : 0);
        return folder->second;
    }

    LaunchpadApp rowOf(const SampleApp& app) {
        LaunchpadApp row{app.name, app.identifier, bookmark(bundlePath(app), createdDate(app)),
                         modifiedDate(app), app.category};
        if (app.isIOSApp)
            row.storeID = "1500000001";
        switch (app.row) {
        case RowKind::plain:
            break;
        case RowKind::hidden:
            row.flags = kLaunchpadHidden;
            break;
        case RowKind::noFlags:
            row.flags.reset();
            break;
        case RowKind::paddedIdentifier:
            row.bundleID = " " + row.bundleID + " ";
            break;
        }
        return row;
    }

    Bytes bookmark(const MacPath& path, Date created) {
        return taken(systemBookmark(m_tree.root(), path, created));
    }

    Bytes taken(const Result<Bytes>& bytes) {
        if (bytes)
            return *bytes;
        m_tree.note(bytes.error());
        return {};
    }

    TreeWriter& m_tree;
    LaunchpadDatabaseBuilder m_builder;
    std::vector<LaunchpadRow> m_pages;
    std::map<std::pair<int, std::string>, LaunchpadRow> m_folders;
};

} // namespace

void writeSampleLaunchpad(TreeWriter& tree) {
    // The path goes through the volume's link from /var, which leads to the same place on the host.
    tree.folder(launchpadDatabasePath(kTemporaryFolder).parent(), 0700);
    if (!tree.status())
        return;
    Launchpad launchpad(tree);
    launchpad.addSamples();
    launchpad.addProgram();
    launchpad.addLeftovers();
    launchpad.addSources();
    launchpad.finish();
}

} // namespace tavrik::practice
