#pragma once

#include "platform/Path.h"

#include <QImage>

#include <optional>
#include <string>

namespace tavrik {

struct ApplyServices;

/// The file of the icon that is applied to an application: a permanent one, or one that a theme offers. Nothing
/// when none is selected or it is not there any more. Reads folders.
std::optional<MacPath> selectedIconFile(const ApplyServices& with, const std::string& bundleID);

/// A theme's icon, brought to the size of the others; of any format that is taken in. Null when it cannot be
/// read.
QImage readThemeIcon(const ApplyServices& with, const MacPath& file);

/// The picture in the file that `selectedIconFile` names; null without one.
QImage selectedIconOf(const ApplyServices& with, const std::string& bundleID);

} // namespace tavrik
