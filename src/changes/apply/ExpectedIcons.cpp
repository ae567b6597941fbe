#include "changes/apply/ExpectedIcons.h"

#include "changes/apply/ApplySnapshot.h"
#include "icons/IconFiles.h"
#include "platform/PathRules.h"

#include <algorithm>
#include <vector>

namespace tavrik {

bool placeIcons(const ApplyTask& task, ApplyStores::AppState& state) {
    struct Icon {
        std::uint64_t identity;
        MacPath path;
        int number;
    };

    std::vector<Icon> permanent;
    std::map<MacPath, std::uint64_t> pending;
    for (const auto& [identity, path] : state.icons) {
        if (isPendingIconPath(path))
            pending.emplace(path, identity);
        else if (const auto number = iconIndex(path.name()); number && !task.marked.contains(*number))
            permanent.push_back({identity, path, *number});
    }
    std::ranges::sort(permanent, {}, &Icon::number);
    for (const MacPath& path : task.change.iconPaths) {
        if (const auto icon = pending.extract(path))
            permanent.push_back({icon.mapped(), path, 0});
    }

    std::map<MacPath, int> numbers; // by the place of before
    state.icons.clear();
    for (const Icon& icon : permanent) {
        const int number = static_cast<int>(numbers.size());
        numbers.emplace(icon.path, number);
        state.icons.emplace(icon.identity, state.permanentFolder / iconFileName(number));
    }
    for (const auto& [path, identity] : pending)
        state.icons.emplace(identity, path); // named by no row

    state.selectedIcon.reset();
    if (!task.wantsIcon())
        return false;
    const auto index = static_cast<std::size_t>(*task.change.selectedIndex);
    if (index >= task.change.iconPaths.size()) {
        if (task.themeIcon)
            state.selectedIcon =
                static_cast<std::int64_t>(numbers.size() + index - task.change.iconPaths.size());
    } else if (const auto number = numbers.find(task.change.iconPaths[index]); number != numbers.end()) {
        state.selectedIcon = number->second;
    }
    return state.selectedIcon.has_value();
}

} // namespace tavrik
