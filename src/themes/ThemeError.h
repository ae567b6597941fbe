#pragma once

#include "platform/Result.h"

#include <string>

namespace tavrik {

/// What a person is told when a theme cannot be made or taken in.
enum class ThemeError {
    installationFailed,
    invalidThemeFormat,
    missingRequiredFiles,
    invalidThemeName,
    themeAlreadyExists,
};

/// The text for a person.
std::string textOf(ThemeError error);

/// As an error to answer with: the text, a colon and `detail` where there is one.
Error errorOf(ThemeError error, const std::string& detail = {});

} // namespace tavrik
