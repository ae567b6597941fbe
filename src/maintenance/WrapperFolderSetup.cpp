#include "maintenance/WrapperFolderSetup.h"

#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/Tools.h"

#include <string>

namespace tavrik {

namespace {

/// The Finder's information about a folder, in which one bit says that it is not to be shown.
constexpr const char* kHiddenFinderInfo = "00000000000000000000000000000000000000000000000000000000000C0000";

bool createFolder(FileManager& files, const MacPath& folder) {
    const auto present = files.attributes(folder, Links::dontFollow);
    if (present && present->type == FileType::folder)
        return true;
    // Behind a link it is somebody else's folder that would be hidden.
    const Status created = present && present->type == FileType::symbolicLink
                               ? Status(Error{folder.string() + " is a symbolic link"})
                               : files.createFolder(folder);
    if (created)
        log("Created Tavrik folder at: " + folder.string());
    else
        log("Error setting up Tavrik folder: " + created.error().description);
    return bool(created);
}

/// "-w" takes the text as it stands, which is what is wanted here.
void hideByAttribute(Tools& tools, const MacPath& folder) {
    const auto written = tools.run(MacPath("/usr/bin/xattr"),
                                   {"-w", "com.apple.FinderInfo", kHiddenFinderInfo, folder.string()});
    log(written && written->exitStatus == 0 ? "Successfully applied hidden flag using xattr"
                                            : "Failed to apply hidden flag using xattr");
}

void hide(Tools& tools, const MacPath& folder) {
    const auto hidden = tools.run(MacPath("/usr/bin/chflags"), {"hidden", folder.string()});
    if (!hidden) {
        log("Error applying hidden flag: " + hidden.error().description);
        return;
    }
    if (hidden->exitStatus == 0) {
        log("Successfully applied hidden flag to Tavrik folder");
        return;
    }
    log(hidden->errors.empty()
            ? "Failed to apply hidden flag with exit code: " + std::to_string(hidden->exitStatus)
            : "Error applying hidden flag: " + hidden->errors);
    hideByAttribute(tools, folder);
}

} // namespace

void setUpWrapperFolder(Mac& mac, const MacPath& folder) {
    if (createFolder(mac.files, folder))
        hide(mac.tools, folder);
}

} // namespace tavrik
