#include "changes/apply/ApplyObstacles.h"

#include "changes/apply/ApplyServices.h"
#include "changes/apply/ApplySnapshot.h"
#include "model/SettingsManager.h"
#include "platform/FileManager.h"
#include "platform/Mac.h"
#include "platform/PathRules.h"
#include "system/AccessCheck.h"
#include "system/DatabaseManager.h"
#include "system/DockManager.h"
#include "wrappers/TavrikAppManager.h"

#include <cstdint>

namespace tavrik {

namespace {

constexpr std::uint64_t kMebibyte = 1u << 20;
constexpr std::uint64_t kForEachApp = 8 * kMebibyte; ///< an icon in all its sizes, twice
constexpr std::uint64_t kForTheRest = 16 * kMebibyte;

std::uint64_t sizeOf(const FileManager& files, const MacPath& file) {
    const auto attributes = files.attributes(file);
    return attributes ? attributes->size : 0;
}

/// The stores go into a backup, by way of a copy that is cleaned and one that is checked.
std::uint64_t neededSpace(const ApplyServices& with, const ApplySnapshot& snapshot) {
    const MacPath database = with.database.launchpadDatabasePath();
    const std::uint64_t stores = sizeOf(with.mac.files, database) +
                                 sizeOf(with.mac.files, MacPath(database.string() + "-wal")) +
                                 sizeOf(with.mac.files, with.dock.dockPlistPath());
    return 3 * stores + snapshot.tasks.size() * kForEachApp + kForTheRest;
}

std::string mebibytes(std::uint64_t bytes) {
    return std::to_string((bytes + kMebibyte - 1) / kMebibyte) + " MB";
}

void lookAtLaunchpad(const ApplyServices& with, std::vector<std::string>& obstacles) {
    if (!with.mac.files.exists(with.database.launchpadDatabasePath())) {
        obstacles.push_back(
            "The Launchpad database is missing. Open Launchpad once, so that the Dock makes it, and try "
            "again.");
        return;
    }
    const auto missing = with.database.missingColumns();
    if (missing && !missing->empty()) {
        std::string names;
        for (const std::string& name : *missing)
            names += (names.empty() ? "" : ", ") + name;
        obstacles.push_back("The Launchpad database has not the form that is known: it lacks " + names +
                            ". The system may have been updated; look for a newer version of Tavrik.");
    } else if (!missing || !with.database.isWritable()) {
        obstacles.push_back(
            "The Launchpad database is locked by another program, or cannot be read. Close other "
            "programs that use it, and try again.");
    }
}

void lookAtLinks(const ApplyServices& with, std::vector<std::string>& obstacles) {
    for (const MacPath& folder : {with.wrappers.tavrikAppsURL(), with.settings.appSupportURL()}) {
        const auto attributes = with.mac.files.attributes(folder, Links::dontFollow);
        if (attributes && attributes->type != FileType::folder)
            obstacles.push_back(folder.string() +
                                " is a link or a file where a folder belongs. Move it away, and try again.");
    }
}

void lookAtSpace(const ApplyServices& with, const ApplySnapshot& snapshot,
                 std::vector<std::string>& obstacles) {
    const std::uint64_t needed = neededSpace(with, snapshot);
    const auto available = with.mac.files.availableSpace(with.settings.appSupportURL());
    if (available && *available < needed)
        obstacles.push_back("The disk is too full: " + mebibytes(needed) + " are needed, and " +
                            mebibytes(*available) + " are free. Make room, and try again.");
}

} // namespace

std::vector<std::string> obstaclesTo(const ApplyServices& with, const ApplySnapshot& snapshot) {
    std::vector<std::string> obstacles;
    // What else would be told follows from it.
    if (const Status access = checkAccess(with.mac, with.settings.appSupportURL()); !access)
        return {access.error().description};
    lookAtLaunchpad(with, obstacles);
    if (!with.dock.readDockPlist())
        obstacles.push_back("The Dock's preferences cannot be read: " + with.dock.dockPlistPath().string() +
                            ". A backup of them can be restored with \"tavrikctl backup restore\".");
    lookAtLinks(with, obstacles);
    lookAtSpace(with, snapshot, obstacles);
    return obstacles;
}

} // namespace tavrik
