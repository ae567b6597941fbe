#pragma once

#include "platform/Path.h"

namespace tavrik {

/// The folder of the wrappers: "Applications/Tavrik" in the home.
MacPath wrapperFolder(const MacPath& home);

/// A path is a wrapper's when it contains "/Applications/Tavrik/".
bool isWrapperPath(const MacPath& path);

/// A path leads into the Trash when it contains "/.Trash/".
bool isTrashPath(const MacPath& path);

/// An application belongs to the system when it lies below "/System/".
bool isSystemPath(const MacPath& path);

/// A path is a pending icon's when it contains "/PendingChanges/Icons/".
bool isPendingIconPath(const MacPath& path);

/// The Launchpad database that belongs to a temporary folder of the form /var/folders/XX/YYYY/T/: components 1
/// to 4 and "/0/com.apple.dock.launchpad/db/db"; with fewer than five components the fixed path below
/// /private/var/folders/0. Takes the text as the platform gives it, since a trailing "/" counts.
MacPath launchpadDatabasePath(std::string_view temporaryFolder);

/// The Dock's preferences and their one-file backup, in the home's Library/Preferences.
MacPath dockPreferencesPath(const MacPath& home);
MacPath dockPreferencesBackupPath(const MacPath& home);

} // namespace tavrik
