#pragma once

#include "platform/Path.h"

/// Where things are on a practice Mac: one user, one volume, laid out like a Mac's. All paths are the Mac's
/// own.
namespace tavrik::practice {

inline const MacPath kHome{"/Users/practice"};
inline const MacPath kPreferencesFolder = kHome / "Library/Preferences";
inline const MacPath kApplicationSupport = kHome / "Library/Application Support";
inline constexpr const char* kTemporaryFolder = "/var/folders/tv/practice/T/";

/// The program's own bundle, for its resources.
inline const MacPath kProgramBundle{"/Applications/Tavrik.app"};
inline constexpr const char* kBundleIdentifier = "com.tavrik.Tavrik";

inline const MacPath kDockProgram{"/System/Library/CoreServices/Dock.app/Contents/MacOS/Dock"};
inline const MacPath kLaunchServicesTool{
    "/System/Library/Frameworks/CoreServices.framework/Frameworks/LaunchServices.framework/Support/lsregister"};

/// A text file: the platform serial number on one line.
inline const MacPath kSerialNumberFile{"/serial-number"};
/// A property list with ProductVersion, as a Mac has it.
inline const MacPath kSystemVersionFile{"/System/Library/CoreServices/SystemVersion.plist"};

/// State of the machine that is not kept in the user's own files.
inline const MacPath kStateFolder{"/private/var/db/practice"};
/// Property list: array of the bundle paths that lsregister was given, in order, without repeats.
inline const MacPath kRegisteredBundles = kStateFolder / "registered.plist";
/// One file per running process, named "<program>.<pid>", empty.
inline const MacPath kProcessFolder = kStateFolder / "processes";
/// Text, a line each: seconds since 2001, a tab, the tool's Mac path, and its arguments, each after a tab.
inline const MacPath kToolJournal = kStateFolder / "tools.log";
/// Text, a line each: seconds since 2001, a tab, the notification's name.
inline const MacPath kNotificationJournal = kStateFolder / "notifications.log";
/// Text, a line each: seconds since 2001, a tab, a message's title, a tab, its text.
inline const MacPath kLocalNotificationJournal = kStateFolder / "messages.log";
/// Property list: array of dictionaries with bundleID and name.
inline const MacPath kRunningApplications = kStateFolder / "running.plist";
/// Property list: array of the paths that carry the hidden flag.
inline const MacPath kHiddenPaths = kStateFolder / "hidden.plist";
/// Property list: array of the paths at and below which the file manager refuses everything, as a Mac's privacy
/// protection does. Missing as long as nothing is refused.
inline const MacPath kRefusedPaths = kStateFolder / "refused.plist";
/// Property list, all optional: restartDelay, indexDelay (seconds, reals), indexes (boolean: whether the Dock
/// indexes at all).
inline const MacPath kBehaviour = kStateFolder / "behaviour.plist";

} // namespace tavrik::practice
