#pragma once

#include "platform/Path.h"

#include <optional>
#include <string>
#include <string_view>

/// How the files in an application's icon folder are named. The permanent and the pending folder use the same
/// names. Pure; any thread.
namespace tavrik {

/// Side in pixels of the small copies of an icon: one for a row at one pixel per point, one for two.
enum class ThumbnailSize : int { x1 = 65, x2 = 130 };

/// "icon_3.png".
std::string iconFileName(int index);

/// The number of an icon's file: the digits between "icon_" and ".png". Nothing for thumbnails, for
/// temporaries, and for every other name, numbers above 999,999,999 among them.
std::optional<int> iconIndex(std::string_view fileName);

/// "icon_3_thumb.png" or "icon_3_thumb@2x.png" beside "icon_3.png".
MacPath thumbnailPath(const MacPath& icon, ThumbnailSize size);

} // namespace tavrik
