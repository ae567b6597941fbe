#pragma once

#include "platform/Bytes.h"
#include "platform/Result.h"

#include <map>
#include <string>
#include <string_view>

/// What the reading and the writing of theme files share.
namespace tavrik {

inline constexpr std::string_view kThemeManifestEntry = "Manifest.plist";
inline constexpr std::string_view kThemeRecordEntry = "Info.plist";
inline constexpr std::string_view kThemeIconsEntry = "Icons/";

/// The limits of all icons together; one icon alone is for checkThemeIcon. The error says what the theme is or
/// has.
Status checkThemeLimits(const std::map<std::string, Bytes>& icons);

/// "5 MB".
std::string megabytes(std::size_t bytes);

/// An untrusted name between quotation marks, fit to be read: all but printable ASCII is a question mark.
std::string quotedName(std::string_view name);

} // namespace tavrik
