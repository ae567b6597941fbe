#include "backups/FolderEmptying.h"
#include "maintenance/RemoveEverything.h"
#include "model/SettingsManager.h"
#include "platform/FileManager.h"
#include "platform/Mac.h"
#include "platform/PathRules.h"
#include "platform/PlainFolders.h"
#include "platform/Threads.h"
#include "platform/UserDefaults.h"
#include "platform/Volume.h"

#include <cerrno>

namespace tavrik {

namespace {

/// The Dock's preferences as they were before the last change: a copy of the program's making beside them.
Status removeDockBackup(const ApplyServices& with) {
    const MacPath file = dockPreferencesBackupPath(with.mac.volume.home());
    const auto standing = with.mac.files.attributes(file, Links::dontFollow);
    return standing && standing->type == FileType::file ? with.mac.files.remove(file) : Status(Done{});
}

} // namespace

Status RemoveEverything::removeSupportFolder() {
    assertOffMainThread("Removing the support folder");
    const auto left = traces();
    if (!left)
        return left.error();
    if (!left->empty())
        return Error{"Tavrik's files are needed until the last trace is removed. " + left->front()};
    FileManager& files = m_with.mac.files;
    const MacPath& folder = m_with.settings.appSupportURL();
    if (Status plain = checkPlainFolders(files, m_with.mac.volume.applicationSupport(), folder); !plain)
        return plain;

    // From here on nothing may bring a file back.
    m_with.settings.setReadOnly();
    if (Status removed = m_with.mac.defaults.removeAll(); !removed)
        return Error{"The program's preferences could not be removed: " + removed.error().description + "."};
    if (Status removed = removeDockBackup(m_with); !removed)
        return Error{"A copy of the Dock's preferences could not be removed: " + removed.error().description +
                     "."};
    // The lock goes with the folder itself, so that nobody else begins in it meanwhile.
    const auto emptied = emptyFolder(files, folder, {".lock"});
    if (!emptied)
        return Error{folder.string() + " could not be emptied: " + emptied.error().description + "."};
    if (!emptied->left.empty())
        return Error{folder.string() + " could not be removed: " + emptied->left.front() + " is in it still."};
    if (Status removed = files.remove(folder); !removed && removed.error().code != ENOENT)
        return Error{folder.string() + " could not be removed: " + removed.error().description + "."};
    return Done{};
}

} // namespace tavrik
