#pragma once

#include "model/ApplicationInfo.h"
#include "themes/ThemeLibrary.h"

#include <set>
#include <string>
#include <vector>

namespace tavrik {

struct Managers;

/// A theme as it lies on disk.
struct ThemeFacts {
    Theme theme;
    std::vector<ThemeIcon> icons;
    /// Applications that have an icon in both formats: two files are hidden or deleted then.
    std::set<std::string> inBothFormats;
    std::set<std::string> hidden; ///< applied, by file name

    /// The files that hold an application's icon, the one that counts first; none when there is no icon.
    std::vector<std::string> filesOf(const std::string& bundleID) const;
};

/// What the themes place shows, but for what is staged.
struct ThemeReading {
    std::vector<ApplicationInfo> apps; ///< empty when the catalogue cannot be read
    std::vector<ThemeFacts> themes;

    /// Null when there is no such theme.
    const ThemeFacts* find(const std::string& themeID) const;
};

/// Blocks on the disk; off the main thread.
ThemeReading readThemes(Managers& managers, const std::vector<Theme>& themes);

} // namespace tavrik
