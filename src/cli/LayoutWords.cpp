#include "cli/LayoutWords.h"

#include "cli/Words.h"

namespace tavrik {

namespace {

std::string joined(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "" : ", ") + name;
    return text;
}

std::string nameOf(const LaunchpadLayout::Application& app) {
    return (app.title.empty() ? app.bundleID : app.title) + (app.isHidden ? " (hidden)" : "");
}

std::vector<std::string> namesIn(const LaunchpadLayout::Folder& folder) {
    std::vector<std::string> names;
    for (const auto& page : folder.pages) {
        for (const LaunchpadLayout::Application& app : page)
            names.push_back(nameOf(app));
    }
    return names;
}

/// The page's line, and below it one for each folder on it.
std::vector<std::string> linesOf(const std::vector<LaunchpadLayout::Item>& page, std::size_t number) {
    std::vector<std::string> items;
    std::vector<std::string> folders;
    for (const LaunchpadLayout::Item& item : page) {
        if (const auto* app = std::get_if<LaunchpadLayout::Application>(&item)) {
            items.push_back(nameOf(*app));
            continue;
        }
        const auto& folder = std::get<LaunchpadLayout::Folder>(item);
        items.push_back("[" + folder.title + "]");
        folders.push_back("  [" + folder.title + "]: " + joined(namesIn(folder)));
    }
    folders.insert(folders.begin(), "Page " + std::to_string(number) + ": " + joined(items));
    return folders;
}

} // namespace

std::vector<std::string> inWords(const LayoutSummary& layout) {
    std::vector<std::string> lines;
    for (std::size_t page = 0; page < layout.launchpad.pages.size(); ++page) {
        const auto more = linesOf(layout.launchpad.pages[page], page + 1);
        lines.insert(lines.end(), more.begin(), more.end());
    }
    if (lines.empty())
        lines.emplace_back("Launchpad shows nothing.");
    std::vector<std::string> tiles;
    tiles.reserve(layout.dock.size());
    for (const LayoutSummary::Tile& tile : layout.dock)
        tiles.push_back(tile.label.empty() ? tile.bundleID : tile.label);
    lines.push_back(tiles.empty() ? "The Dock has no tiles." : "Dock: " + joined(tiles));
    return lines;
}

std::vector<std::string> inWords(const LayoutDifferences& since) {
    std::vector<std::string> lines;
    const auto add = [&lines](const char* what, const std::vector<std::string>& names) {
        if (!names.empty())
            lines.push_back(what + joined(names) + ".");
    };
    add("New in Launchpad: ", since.onlyAfter);
    add("Gone from Launchpad: ", since.onlyBefore);
    for (const auto& [name, from, to] : since.moved) {
        lines.push_back(name);
        lines.back().append(" moved from ").append(from).append(" to ").append(to).append(".");
    }
    add("New in the Dock: ", since.tilesOnlyAfter);
    add("Gone from the Dock: ", since.tilesOnlyBefore);
    if (since.isDockReordered)
        lines.emplace_back("The tiles of the Dock stand in another order.");
    return lines;
}

} // namespace tavrik
