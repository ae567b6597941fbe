#include "maintenance/UnfinishedFiles.h"

#include "icons/IconSweep.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/PathComponent.h"
#include "platform/PlainFolders.h"

#include <string>
#include <vector>

namespace tavrik {

namespace {

/// Below the support folder: a file under its own name with ".new" is one that was not written to its end, with
/// ".tavrik-copy" one that was not copied to its end.
constexpr const char* kUnfinishedFiles[] = {
    "AppSettings.plist.new",
    "AppSettings.tmp",
    "AppSettings.backup.tavrik-copy",
    "PendingChanges/pendingChanges.plist.new",
    "PendingChanges/transfer.plist.new",
};

/// Of these there is one for each application.
constexpr const char* kIconFolders[] = {"IconCache", "PendingChanges/Icons"};

bool isPlain(const FileManager& files, const MacPath& path, FileType type) {
    const auto present = files.attributes(path, Links::dontFollow);
    return present && present->type == type;
}

} // namespace

void removeUnfinishedFiles(FileManager& files, const MacPath& supportFolder) {
    for (const char* name : kUnfinishedFiles) {
        const MacPath file = supportFolder / name;
        if (!checkPlainFolders(files, supportFolder, file.parent()) || !isPlain(files, file, FileType::file))
            continue;
        if (const Status removed = files.remove(file); !removed)
            log("⚠️ Could not remove " + file.string() + ": " + removed.error().description);
    }
    for (const char* name : kIconFolders) {
        const MacPath base = supportFolder / name;
        if (!checkPlainFolders(files, supportFolder, base))
            continue;
        const auto apps = files.list(base);
        for (const std::string& app : apps ? *apps : std::vector<std::string>()) {
            if (isSafePathComponent(app) && isPlain(files, base / app, FileType::folder))
                removeUnfinishedIcons(files, base / app);
        }
    }
}

} // namespace tavrik
