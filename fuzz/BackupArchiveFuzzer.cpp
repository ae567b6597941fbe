#include "backups/BackupArchive.h"
#include "backups/BackupContents.h"
#include "platform/Log.h"
#include "platform/PropertyList.h"

#include <cstdlib>

using namespace tavrik;

namespace {

void require(bool holds) {
    if (!holds)
        std::abort();
}

void check(const Bytes& dockPlist, const Bytes& database) {
    const auto reading = checkContents({dockPlist, database});
    if (const auto* contents = std::get_if<BackupContents>(&reading))
        require(contents->dockPlist == dockPlist && contents->launchpadDatabase == database);
    else
        require(!inWords(*std::get_if<BackupFault>(&reading)).empty());
}

} // namespace

/// An archive, whose members are looked into; or, told by its beginning, a database as one of them. What was
/// extracted makes an archive of the same members again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    setLogStream(nullptr);
    if (textOf({data, size}).starts_with("SQLite format 3")) {
        check(*plist::serialize(plist::Dictionary(), plist::Format::binary), Bytes(data, data + size));
        return 0;
    }
    const auto members = extractArchive({data, size});
    if (!members)
        return 0;
    const auto again = createArchive(*members);
    require(again && extractArchive(*again) == members);
    const auto dockPlist = members->find(kDockMember);
    const auto database = members->find(kLaunchpadMember);
    if (dockPlist != members->end() && database != members->end())
        check(dockPlist->second, database->second);
    return 0;
}
