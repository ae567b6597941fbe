#include "wrappers/IconSettingsManager.h"

#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/UserDefaults.h"

namespace tavrik {

namespace {

constexpr std::string_view kKey = "SquircleSettings";

plist::Dictionary asDictionary(std::optional<plist::Value> value) {
    plist::Dictionary* dictionary = value ? value->as<plist::Dictionary>() : nullptr;
    return dictionary ? std::move(*dictionary) : plist::Dictionary();
}

} // namespace

IconSettingsManager::IconSettingsManager(Mac& mac) : m_mac(mac) {}

bool IconSettingsManager::squircleSetting(const std::string& bundleID, int iconIndex) const {
    const std::optional<plist::Value> settings = m_mac.defaults.value(kKey);
    const plist::Value* icons = settings ? settings->find(bundleID) : nullptr;
    const bool* isSquircle = icons ? icons->find<bool>(std::to_string(iconIndex)) : nullptr;
    return isSquircle && *isSquircle;
}

void IconSettingsManager::setSquircleSetting(const std::string& bundleID, int iconIndex, bool isSquircle) {
    plist::Dictionary settings = asDictionary(m_mac.defaults.value(kKey));
    plist::Dictionary icons = asDictionary(settings[bundleID]);
    icons[std::to_string(iconIndex)] = isSquircle;
    settings[bundleID] = std::move(icons);
    if (const Status saved = m_mac.defaults.set(kKey, std::move(settings)); !saved)
        log("WARNING: Failed to save the icon shape of " + bundleID + ": " + saved.error().description);
}

} // namespace tavrik
