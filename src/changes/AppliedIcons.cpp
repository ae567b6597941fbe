#include "changes/AppliedIcons.h"

#include "icons/IconFiles.h"
#include "icons/IconStore.h"
#include "model/SettingsManager.h"
#include "platform/FileManager.h"
#include "platform/Log.h"

#include <algorithm>

namespace tavrik {

std::optional<int> AppliedIcons::State::placeIn(const std::vector<MacPath>& displayPaths) const {
    const auto found = std::ranges::find_if(displayPaths, [&](const MacPath& icon) {
        return selectedIcon && iconIndex(icon.name()) == *selectedIcon &&
               std::ranges::find(permanentIconPaths, icon) != permanentIconPaths.end();
    });
    if (found == displayPaths.end())
        return std::nullopt;
    return static_cast<int>(found - displayPaths.begin());
}

bool AppliedIcons::State::isChosenBy(std::optional<int> index) const {
    if (!selectedIcon)
        return !index;
    if (const auto place = placeIn(permanentIconPaths))
        return index == place;
    // What lies behind the row is a theme icon's place. A number of no icon is chosen by nothing, so that
    // choosing the application's own icon is a change.
    return index == *selectedIcon && *index >= static_cast<int>(permanentIconPaths.size());
}

std::set<int> AppliedIcons::State::numbers() const {
    std::set<int> numbers;
    for (const MacPath& icon : permanentIconPaths) {
        if (const auto number = iconIndex(icon.name()))
            numbers.insert(*number);
    }
    return numbers;
}

AppliedIcons::State AppliedIcons::look(const std::string& bundleID) {
    State state{.permanentIconPaths = m_store.listIcons(bundleID),
                .selectedIcon = m_settings.getSelectedIcon(bundleID)};
    std::set<std::optional<int>> numbers;
    std::erase_if(state.permanentIconPaths, [&](const MacPath& icon) {
        const auto present = m_files.attributes(icon, Links::dontFollow);
        const bool isOther = present && present->type != FileType::file;
        return isOther || !numbers.insert(iconIndex(icon.name())).second;
    });
    const auto [last, isNew] = m_lastAppliedState.try_emplace(bundleID, state);
    if (!isNew && last->second != state) {
        log("⚠️ State mismatch detected for " + bundleID);
        last->second = state;
    }
    return state;
}

} // namespace tavrik
