#include "themes/ThemeError.h"

namespace tavrik {

std::string textOf(ThemeError error) {
    switch (error) {
    case ThemeError::installationFailed:
        return "Failed to install theme";
    case ThemeError::invalidThemeFormat:
        return "Invalid theme format";
    case ThemeError::missingRequiredFiles:
        return "Theme is missing required files";
    case ThemeError::invalidThemeName:
        return "Theme name contains invalid characters";
    case ThemeError::themeAlreadyExists:
        return "A theme with this name already exists";
    }
    return {};
}

Error errorOf(ThemeError error, const std::string& detail) {
    return {detail.empty() ? textOf(error) : textOf(error) + ": " + detail};
}

} // namespace tavrik
