#include "backups/LiveStores.h"

#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/SqliteCopy.h"
#include "platform/Volume.h"

#include <string>
#include <string_view>
#include <utility>

namespace tavrik {

namespace {

/// Where both stores are.
struct Places {
    const MacPath& dockPlist;
    const MacPath& database;
};

LiveStoresFault notFound(const std::string& store, const MacPath& file) {
    log("⚠️ " + store + " not found at: " + file.string());
    return {.error = {"There is no " + store + " at " + file.string() + "."}, .isNothingToKeep = true};
}

LiveStoresFault failed(const std::string& reason, bool isNothingToKeep = false) {
    log("❌ Backup creation failed: " + reason);
    return {.error = {reason + "."}, .isNothingToKeep = isNothingToKeep};
}

LiveStoresFault damaged(const Places& places, BackupFault fault) {
    const bool isOfDock = fault == BackupFault::damagedDockPlist;
    return failed((isOfDock ? places.dockPlist : places.database).string() + " is damaged", true);
}

/// What the failed copy of the database means, by what is in the file.
LiveStoresFault databaseFault(Mac& mac, const Places& places, Bytes dockPlist, const Error& error) {
    constexpr std::string_view kMagic("SQLite format 3\0", 16);
    auto content = mac.files.read(places.database);
    if (!content && mac.files.exists(places.database))
        return failed(content.error().description);
    if (!content || !textOf(*content).starts_with(kMagic))
        return notFound("Launchpad database", places.database);
    const BackupReading checked = checkContents({std::move(dockPlist), std::move(*content)});
    if (const auto* fault = std::get_if<BackupFault>(&checked))
        return damaged(places, *fault);
    return failed(places.database.string() + ": " + error.description);
}

} // namespace

std::variant<BackupContents, LiveStoresFault> readLiveStores(Mac& mac, const MacPath& dockPlist,
                                                             const MacPath& database) {
    const Places places{dockPlist, database};
    auto dock = mac.files.exists(dockPlist) ? mac.files.read(dockPlist) : Bytes();
    if (!dock)
        return failed(dock.error().description);
    if (dock->empty())
        return notFound("Dock plist", dockPlist);

    const HostPath host = mac.volume.hostPath(database);
    auto copy = host.empty() ? Result<Bytes>(Error{}) : sqlite::copyOf(host);
    if (!copy)
        return databaseFault(mac, places, std::move(*dock), copy.error());

    return BackupContents{std::move(*dock), std::move(*copy)};
}

LiveStoresFault whyUnsound(Mac& mac, const MacPath& dockPlist, const MacPath& database) {
    auto live = readLiveStores(mac, dockPlist, database);
    if (auto* fault = std::get_if<LiveStoresFault>(&live))
        return std::move(*fault);
    const BackupReading checked = checkContents(std::get<BackupContents>(std::move(live)));
    if (const auto* fault = std::get_if<BackupFault>(&checked))
        return damaged({dockPlist, database}, *fault);
    return failed("the cleaned copy of the stores is damaged");
}

} // namespace tavrik
