#pragma once

#include "platform/Result.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

/// How the icon files of a theme are named: the application's bundle identifier and an extension. Pure; any
/// thread.
namespace tavrik {

/// Of two files for one application the first one counts.
inline constexpr std::array<std::string_view, 2> kThemeIconExtensions{".png", ".icns"};

/// The bundle identifier that an icon file is for; nothing when the name is none that a theme uses.
std::optional<std::string> bundleIDOfIcon(const std::string& fileName);

/// The name of an application's icon, or in a sentence why no file can have it.
Result<std::string> themeIconName(const std::string& bundleID,
                                  std::string_view extension = kThemeIconExtensions.front());

} // namespace tavrik
