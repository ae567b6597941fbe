#pragma once

#include "platform/Path.h"
#include "platform/PropertyList.h"

#include <optional>

namespace tavrik {
class FileManager;
}

/// The small property lists in which a practice Mac keeps its state.
namespace tavrik::practice {

/// The content; nothing when the file is missing. An error when it cannot be read or is damaged.
Result<std::optional<plist::Value>> readPropertyList(const FileManager& files, const MacPath& file);

/// Replaces the file in one step, in binary form; its folder must exist. A failure leaves the old content.
Status writePropertyList(FileManager& files, const MacPath& file, const plist::Value& content);

} // namespace tavrik::practice
