#include "themes/ThemeIconName.h"

#include "platform/PathComponent.h"

#include <cerrno>

namespace tavrik {

std::optional<std::string> bundleIDOfIcon(const std::string& fileName) {
    if (!isSafePathComponent(fileName) || fileName.starts_with('.'))
        return std::nullopt;
    for (const std::string_view extension : kThemeIconExtensions) {
        if (fileName.ends_with(extension))
            return fileName.substr(0, fileName.size() - extension.size());
    }
    return std::nullopt;
}

Result<std::string> themeIconName(const std::string& bundleID, std::string_view extension) {
    std::string name = bundleID + std::string(extension);
    if (bundleIDOfIcon(name) != bundleID)
        return Error{"“" + bundleID + "” cannot name an icon", EINVAL};
    return name;
}

} // namespace tavrik
