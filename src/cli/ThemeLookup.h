#pragma once

#include "cli/Companion.h"
#include "themes/Theme.h"

#include <string>
#include <variant>
#include <vector>

namespace tavrik {

/// Opens the companion and the library of themes, and takes up what is staged when the command is to write.
/// Anything but `done` is the code to end with, its sentence printed.
[[nodiscard]] ExitCode openThemes(Companion& companion, Access access);

std::vector<Theme> installedThemes(Companion& companion);

/// The theme with exactly this name or id, or else the only one with this name in other letter case; or the
/// code to end with, its sentence printed.
std::variant<Theme, ExitCode> findTheme(Companion& companion, const std::string& nameOrID);

/// The names of a theme's files for an application, the one that counts first.
std::vector<std::string> iconFilesOf(Companion& companion, const Theme& theme, const std::string& bundleID);

/// That the theme has no icon for it, with the nearest ones it has.
std::string noSuchThemeIcon(Companion& companion, const Theme& theme, const std::string& bundleID);

} // namespace tavrik
