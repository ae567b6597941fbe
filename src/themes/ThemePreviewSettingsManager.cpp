#include "themes/ThemePreviewSettingsManager.h"

#include "platform/Log.h"
#include "platform/UserDefaults.h"

#include <string>

namespace tavrik {

namespace {

constexpr std::string_view kStyle = "ThemePreviewStyle";
constexpr std::string_view kShowFileNames = "ThemeShowFileNames";
constexpr std::string_view kGrid = "grid";

void save(UserDefaults& defaults, std::string_view key, plist::Value value) {
    if (const Status saved = defaults.set(key, std::move(value)); !saved)
        log("Failed to save " + std::string(key) + ": " + saved.error().description);
}

} // namespace

ThemePreviewSettingsManager::ThemePreviewSettingsManager(UserDefaults& defaults) : m_defaults(defaults) {}

ThemePreviewStyle ThemePreviewSettingsManager::previewStyle() const {
    const auto value = m_defaults.value(kStyle);
    return value == plist::Value(kGrid) ? ThemePreviewStyle::grid : ThemePreviewStyle::scattered;
}

void ThemePreviewSettingsManager::setPreviewStyle(ThemePreviewStyle style) {
    save(m_defaults, kStyle, style == ThemePreviewStyle::grid ? kGrid : "scattered");
}

bool ThemePreviewSettingsManager::showsFileNames() const {
    return m_defaults.value(kShowFileNames) == plist::Value(true);
}

void ThemePreviewSettingsManager::setShowsFileNames(bool shows) {
    save(m_defaults, kShowFileNames, shows);
}

} // namespace tavrik
