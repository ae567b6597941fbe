#include "ui/models/LaunchpadCopy.h"

#include "platform/Mac.h"
#include "platform/SqliteCopy.h"
#include "platform/Volume.h"
#include "system/DatabaseManager.h"

namespace tavrik {

Result<sqlite::Connection> openLaunchpadCopy(const Mac& mac, const DatabaseManager& database) {
    const auto content = sqlite::copyOf(mac.volume.hostPath(database.launchpadDatabasePath()));
    auto copy = content ? sqlite::openCopy(*content) : Result<sqlite::Connection>(content.error());
    if (!copy)
        return Error{"The Launchpad database cannot be read: " + copy.error().description + "."};
    return copy;
}

} // namespace tavrik
