#include "backups/BackupSummary.h"
#include "system/TitleOrder.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <map>
#include <set>

namespace tavrik {

namespace {

struct Placed {
    std::string name;
    std::string place;
};

/// What is the same in two layouts has one key; several rows of an application share it.
using Applications = std::map<std::string, std::vector<Placed>>;

class Collecting {
public:
    explicit Collecting(const LaunchpadLayout& launchpad) {
        for (std::size_t page = 0; page < launchpad.pages.size(); ++page) {
            const std::string place = "page " + std::to_string(page + 1);
            for (const LaunchpadLayout::Item& item : launchpad.pages[page])
                std::visit([&](const auto& found) { add(found, place); }, item);
        }
    }

    Applications applications;

private:
    void add(const LaunchpadLayout::Application& app, const std::string& place) {
        const std::string& name = app.title.empty() ? app.bundleID : app.title;
        applications[app.bundleID.empty() ? app.title : app.bundleID].push_back({name, place});
    }

    void add(const LaunchpadLayout::Folder& folder, const std::string&) {
        for (const auto& page : folder.pages) {
            for (const LaunchpadLayout::Application& app : page)
                add(app, "folder " + folder.title);
        }
    }
};

/// Takes away what stands at the same place in both.
void dropUnmoved(std::vector<Placed>& before, std::vector<Placed>& after) {
    std::erase_if(before, [&after](const Placed& old) {
        const auto same = std::ranges::find(after, old.place, &Placed::place);
        if (same == after.end())
            return false;
        after.erase(same);
        return true;
    });
}

void compareLaunchpad(Applications before, Applications after, LayoutDifferences& found) {
    for (auto& [key, old] : before) {
        std::vector<Placed>& current = after[key];
        dropUnmoved(old, current);
        const std::size_t moved = std::min(old.size(), current.size());
        for (std::size_t i = 0; i < moved; ++i)
            found.moved.push_back({current[i].name, old[i].place, current[i].place});
        for (std::size_t i = moved; i < old.size(); ++i)
            found.onlyBefore.push_back(old[i].name);
        current.erase(current.begin(), current.begin() + static_cast<std::ptrdiff_t>(moved));
    }
    for (const auto& [key, added] : after)
        std::ranges::transform(added, std::back_inserter(found.onlyAfter), &Placed::name);

    sortByTitle(found.onlyBefore, std::identity());
    sortByTitle(found.onlyAfter, std::identity());
    sortByTitle(found.moved,
                [](const LayoutDifferences::Move& move) -> const std::string& { return move.name; });
}

std::string keyOf(const LayoutSummary::Tile& tile) {
    return tile.bundleID.empty() ? tile.label : tile.bundleID;
}

/// The keys of the tiles that the other Dock has too, in order; the names of those that it has not go apart.
std::vector<std::string> sharedTiles(const std::vector<LayoutSummary::Tile>& dock,
                                     const std::vector<LayoutSummary::Tile>& other,
                                     std::vector<std::string>& apart) {
    std::multiset<std::string> left;
    std::ranges::transform(other, std::inserter(left, left.end()), keyOf);
    std::vector<std::string> shared;
    for (const LayoutSummary::Tile& tile : dock) {
        const auto found = left.find(keyOf(tile));
        if (found == left.end()) {
            apart.push_back(tile.label.empty() ? tile.bundleID : tile.label);
        } else {
            shared.push_back(*found);
            left.erase(found);
        }
    }
    return shared;
}

} // namespace

bool LayoutDifferences::empty() const {
    return onlyBefore.empty() && onlyAfter.empty() && moved.empty() && tilesOnlyBefore.empty() &&
           tilesOnlyAfter.empty() && !isDockReordered;
}

LayoutDifferences differences(const LayoutSummary& before, const LayoutSummary& after) {
    LayoutDifferences found;
    compareLaunchpad(Collecting(before.launchpad).applications, Collecting(after.launchpad).applications,
                     found);
    found.isDockReordered = sharedTiles(before.dock, after.dock, found.tilesOnlyBefore) !=
                            sharedTiles(after.dock, before.dock, found.tilesOnlyAfter);
    return found;
}

} // namespace tavrik
