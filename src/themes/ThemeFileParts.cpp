#include "themes/ThemeFileParts.h"

#include "themes/ThemeFile.h"
#include "themes/ThemeIconCheck.h"

#include <algorithm>

namespace tavrik {

Status checkThemeLimits(const std::map<std::string, Bytes>& icons) {
    std::size_t bytes = 0;
    std::uint64_t pixels = 0;
    for (const auto& [name, content] : icons) {
        bytes += content.size();
        pixels += statedPixels(content);
    }
    if (icons.size() > kMostThemeIcons)
        return Error{"holds more than " + std::to_string(kMostThemeIcons) + " icons"};
    if (bytes > kLargestThemeSize)
        return Error{"holds more than " + megabytes(kLargestThemeSize)};
    if (pixels > kMostThemePixels)
        return Error{"holds too many large pictures"};
    return Done{};
}

std::string megabytes(std::size_t bytes) {
    return std::to_string(bytes >> 20) + " MB";
}

std::string quotedName(std::string_view name) {
    constexpr std::size_t kLongest = 80;
    std::string text(name.substr(0, kLongest));
    std::ranges::replace_if(text, [](char byte) { return byte < 0x20 || byte > 0x7E; }, '?');
    return "“" + text + (name.size() > kLongest ? "…”" : "”");
}

} // namespace tavrik
