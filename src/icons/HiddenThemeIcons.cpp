#include "icons/HiddenThemeIcons.h"

#include "platform/Log.h"
#include "platform/UserDefaults.h"

#include <algorithm>

namespace tavrik {

namespace {

std::string keyOf(const std::string& themeID) {
    return "HiddenThemeIcons." + themeID;
}

/// As it is stored: in its order, and with what other programs may have put in it.
plist::Array listOf(const UserDefaults& defaults, const std::string& themeID) {
    const auto value = defaults.value(keyOf(themeID));
    const auto* list = value ? value->as<plist::Array>() : nullptr;
    return list ? *list : plist::Array();
}

bool save(UserDefaults& defaults, const std::string& themeID, plist::Array list) {
    auto value = list.empty() ? std::nullopt : std::optional<plist::Value>(std::move(list));
    const Status saved = defaults.set(keyOf(themeID), std::move(value));
    if (!saved)
        log("Failed to save the hidden icons of theme " + themeID + ": " + saved.error().description);
    return bool(saved);
}

} // namespace

HiddenThemeIcons::HiddenThemeIcons(UserDefaults& defaults) : m_defaults(defaults) {}

std::set<std::string> HiddenThemeIcons::hidden(const std::string& themeID) const {
    std::set<std::string> names;
    for (const plist::Value& entry : listOf(m_defaults, themeID)) {
        if (const auto* name = entry.as<std::string>())
            names.insert(*name);
    }
    return names;
}

bool HiddenThemeIcons::hide(const std::string& themeID, const std::string& iconFileName) {
    plist::Array list = listOf(m_defaults, themeID);
    if (std::ranges::find(list, plist::Value(iconFileName)) != list.end())
        return true;
    list.emplace_back(iconFileName);
    return save(m_defaults, themeID, std::move(list));
}

bool HiddenThemeIcons::unhide(const std::string& themeID, const std::string& iconFileName) {
    plist::Array list = listOf(m_defaults, themeID);
    return std::erase(list, plist::Value(iconFileName)) == 0 || save(m_defaults, themeID, std::move(list));
}

bool HiddenThemeIcons::forget(const std::string& themeID) {
    return !m_defaults.value(keyOf(themeID)) || save(m_defaults, themeID, {});
}

bool HiddenThemeIcons::isOffered(const std::string& themeID, const std::string& bundleID) const {
    return !hidden(themeID).contains(bundleID + ".png");
}

} // namespace tavrik
