#include "backups/BackupContents.h"

#include "backups/BackupArchive.h"
#include "backups/BackupContainer.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/PropertyList.h"
#include "platform/Sqlite.h"
#include "platform/SqliteCopy.h"

#include <optional>
#include <utility>

namespace tavrik {

namespace {

std::optional<Bytes> take(ArchiveMembers& members, const char* name) {
    const auto member = members.find(name);
    return member == members.end() ? std::nullopt : std::optional(std::move(member->second));
}

bool isDockPlist(ByteView bytes) {
    const auto list = plist::parse(bytes);
    return list && list->as<plist::Dictionary>();
}

bool isLaunchpadDatabase(ByteView bytes) {
    auto database = sqlite::openCopy(bytes);
    if (!database)
        return false;
    auto tables = database->prepare("SELECT count(*) FROM sqlite_master "
                                    "WHERE type = 'table' AND name IN ('items', 'apps', 'groups')");
    constexpr int kAll = 3;
    return tables && tables.step() == sqlite::Step::row && tables.int32(0) == kAll &&
           sqlite::checkIntegrity(*database);
}

} // namespace

std::string inWords(BackupFault fault) {
    switch (fault) {
    case BackupFault::unreadable:
        return "The backup cannot be read: see that its file is still there and that its rights let you read "
               "it.";
    case BackupFault::sealed:
        return "The backup is damaged, cut short or was made on another Mac: choose another one, or restore it "
               "on "
               "the Mac that made it.";
    case BackupFault::noArchive:
        return "The backup opens, but what is in it is no archive: choose another one.";
    case BackupFault::noDockPlist:
        return "The backup holds no Dock preferences: choose another one.";
    case BackupFault::noDatabase:
        return "The backup holds no Launchpad database: choose another one.";
    case BackupFault::damagedDockPlist:
        return "The Dock preferences in the backup are damaged: choose another one.";
    case BackupFault::damagedDatabase:
        return "The Launchpad database in the backup is damaged or is not Launchpad's: choose another one.";
    }
    return "The backup cannot be used: choose another one.";
}

BackupReading readBackup(const FileManager& files, const BackupContainer& container, const MacPath& backup) {
    Result<Bytes> file = files.read(backup);
    if (!file) {
        log("Failed to read backup file");
        return BackupFault::unreadable;
    }
    auto archive = container.open(std::move(*file));
    if (!archive)
        return BackupFault::sealed;
    auto members = extractArchive(*archive);
    if (!members)
        return BackupFault::noArchive;
    archive.reset();
    auto dockPlist = take(*members, kDockMember);
    if (!dockPlist)
        return BackupFault::noDockPlist;
    auto database = take(*members, kLaunchpadMember);
    if (!database)
        return BackupFault::noDatabase;
    return checkContents({std::move(*dockPlist), std::move(*database)});
}

BackupReading checkContents(BackupContents contents) {
    if (!isDockPlist(contents.dockPlist))
        return BackupFault::damagedDockPlist;
    if (!isLaunchpadDatabase(contents.launchpadDatabase))
        return BackupFault::damagedDatabase;
    return contents;
}

} // namespace tavrik
