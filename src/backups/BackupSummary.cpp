#include "backups/BackupSummary.h"

#include "platform/PropertyList.h"
#include "platform/SqliteCopy.h"
#include "system/DockTiles.h"

namespace tavrik {

namespace {

/// Nothing for a spacer, which has neither an identifier nor a label to be read.
std::optional<LayoutSummary::Tile> summaryOf(plist::Value& tile) {
    auto* data = tile.find("tile-data");
    if (!data || !data->as<plist::Dictionary>())
        return std::nullopt;
    const dock::Tile read(*data->as<plist::Dictionary>());
    const LayoutSummary::Tile summary{read.label() ? *read.label() : "",
                                      read.bundleID() ? *read.bundleID() : ""};
    const bool isBlank = summary.label.find_first_not_of(' ') == std::string::npos;
    return isBlank && summary.bundleID.empty() ? std::nullopt : std::optional(summary);
}

} // namespace

Result<LayoutSummary> summaryOf(const BackupContents& contents) {
    auto database = sqlite::openCopy(contents.launchpadDatabase);
    if (!database)
        return Error{"The Launchpad database cannot be read: " + database.error().description + "."};
    return summaryOf(contents.dockPlist, *database);
}

Result<LayoutSummary> summaryOf(ByteView dockPlist, sqlite::Connection& launchpadDatabase) {
    LayoutSummary summary;
    auto layout = readLaunchpadLayout(launchpadDatabase);
    if (!layout)
        return Error{"The Launchpad database cannot be read: " + launchpadDatabase.lastError() + "."};
    summary.launchpad = std::move(*layout);

    auto preferences = plist::parse(dockPlist);
    if (!preferences)
        return Error{"The Dock's preferences cannot be read: " + preferences.error().description + "."};
    for (const char* part : {"persistent-apps", "persistent-others"}) {
        auto* tiles = preferences->find(part);
        if (!tiles || !tiles->as<plist::Array>())
            continue;
        for (plist::Value& tile : *tiles->as<plist::Array>()) {
            if (auto read = summaryOf(tile))
                summary.dock.push_back(std::move(*read));
        }
    }
    return summary;
}

} // namespace tavrik
