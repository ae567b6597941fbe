#include "platform/PathRules.h"

#include <string>
#include <vector>

namespace tavrik {

namespace {

/// Between the separators, empty texts included: "/a/" has the components "", "a" and "".
std::vector<std::string> components(std::string_view path) {
    std::vector<std::string> parts;
    for (;;) {
        const std::size_t slash = path.find('/');
        parts.emplace_back(path.substr(0, slash));
        if (slash == std::string_view::npos)
            return parts;
        path.remove_prefix(slash + 1);
    }
}

} // namespace

MacPath wrapperFolder(const MacPath& home) {
    return home / "Applications/Tavrik";
}

bool isWrapperPath(const MacPath& path) {
    return path.string().find("/Applications/Tavrik/") != std::string::npos;
}

bool isTrashPath(const MacPath& path) {
    return path.string().find("/.Trash/") != std::string::npos;
}

bool isSystemPath(const MacPath& path) {
    return path.string().starts_with("/System/");
}

bool isPendingIconPath(const MacPath& path) {
    return path.string().find("/PendingChanges/Icons/") != std::string::npos;
}

MacPath launchpadDatabasePath(std::string_view temporaryFolder) {
    const std::vector<std::string> parts = components(temporaryFolder);
    if (parts.size() < 5)
        return MacPath("/private/var/folders/0/com.apple.dock.launchpad/db/db");
    return MacPath("/" + parts[1] + "/" + parts[2] + "/" + parts[3] + "/" + parts[4] +
                   "/0/com.apple.dock.launchpad/db/db");
}

MacPath dockPreferencesPath(const MacPath& home) {
    return home / "Library/Preferences/com.apple.dock.plist";
}

MacPath dockPreferencesBackupPath(const MacPath& home) {
    return home / "Library/Preferences/com.apple.dock.backup.plist";
}

} // namespace tavrik
