#include "changes/apply/StoreChange.h"

#include "changes/apply/ApplyStores.h"

#include <algorithm>
#include <cstdint>

namespace tavrik {

namespace {

using Kind = StoreChange::Kind;

std::string text(std::optional<std::int64_t> number) {
    return number ? std::to_string(*number) : std::string();
}

std::string placeText(const ApplyStores::ShownApp& app) {
    return "page " + std::to_string(static_cast<std::int64_t>(app.page)) + ", place " +
           std::to_string(app.place);
}

class Changes {
public:
    void note(Kind kind, const std::string& subject, const std::string& from, const std::string& to) {
        if (from != to)
            m_changes.push_back({kind, subject, from, to});
    }

    std::vector<StoreChange> sorted() {
        std::ranges::sort(m_changes);
        return std::move(m_changes);
    }

private:
    std::vector<StoreChange> m_changes;
};

/// Hands each key with what is there before and after; null where there is nothing.
template<typename Map, typename Each>
void forEachKey(const Map& before, const Map& after, Each&& each) {
    for (const auto& [key, value] : before) {
        const auto now = after.find(key);
        each(key, &value, now == after.end() ? nullptr : &now->second);
    }
    for (const auto& [key, value] : after) {
        if (!before.contains(key))
            each(key, static_cast<const typename Map::mapped_type*>(nullptr), &value);
    }
}

void noteApps(Changes& changes, const ApplyStores& before, const ApplyStores& after) {
    forEachKey(before.apps, after.apps, [&](RowID, const auto* was, const auto* is) {
        const std::string& bundleID = (was ? was : is)->bundleID;
        changes.note(Kind::place, bundleID, was ? placeText(*was) : "", is ? placeText(*is) : "");
        if (!was || !is)
            return;
        changes.note(Kind::shown, bundleID, was->shown.string(), is->shown.string());
        changes.note(Kind::title, bundleID, was->title.value_or(""), is->title.value_or(""));
    });
    forEachKey(before.folders, after.folders, [&](RowID row, const auto* was, const auto* is) {
        changes.note(Kind::folderTitle, std::to_string(static_cast<std::int64_t>(row)), was ? *was : "",
                     is ? *is : "");
    });
}

void noteTiles(Changes& changes, const ApplyStores& before, const ApplyStores& after) {
    const ApplyStores::Tile none;
    for (std::size_t i = 0; i < std::max(before.tiles.size(), after.tiles.size()); ++i) {
        const auto& was = i < before.tiles.size() ? before.tiles[i] : none;
        const auto& is = i < after.tiles.size() ? after.tiles[i] : none;
        const std::string& subject = was.bundleID.empty() ? is.bundleID : was.bundleID;
        changes.note(Kind::tile, subject, was.path.string(), is.path.string());
        changes.note(Kind::tileLabel, subject, was.label.value_or(""), is.label.value_or(""));
    }
}

void noteIcons(Changes& changes, const ApplyStores& before, const ApplyStores& after) {
    for (const auto& [bundleID, was] : before.staged) {
        const auto found = after.staged.find(bundleID);
        if (found == after.staged.end())
            continue;
        // A picture that was added meanwhile is no change of what was there.
        for (const auto& [identity, path] : was.icons) {
            const auto now = found->second.icons.find(identity);
            changes.note(Kind::iconFile, bundleID, path.string(),
                         now == found->second.icons.end() ? "" : now->second.string());
        }
        changes.note(Kind::selectedIcon, bundleID, text(was.selectedIcon), text(found->second.selectedIcon));
    }
}

void noteNames(Changes& changes, Kind kind, const std::string& subject, const std::set<std::string>& before,
               const std::set<std::string>& after) {
    for (const std::string& name : before) {
        if (!after.contains(name))
            changes.note(kind, subject.empty() ? name : subject, name, "");
    }
    for (const std::string& name : after) {
        if (!before.contains(name))
            changes.note(kind, subject.empty() ? name : subject, "", name);
    }
}

void noteThemes(Changes& changes, const ApplyStores& before, const ApplyStores& after) {
    for (const auto& [themeID, was] : before.themes) {
        const auto found = after.themes.find(themeID);
        if (found == after.themes.end()) {
            changes.note(Kind::theme, themeID, themeID, "");
            continue;
        }
        noteNames(changes, Kind::themeIcon, themeID, was.iconFiles, found->second.iconFiles);
        noteNames(changes, Kind::hiddenThemeIcon, themeID, was.hidden, found->second.hidden);
    }
}

} // namespace

std::string nameOf(Kind kind) {
    switch (kind) {
    case Kind::iconFile:
        return "iconFile";
    case Kind::selectedIcon:
        return "selectedIcon";
    case Kind::wrapper:
        return "wrapper";
    case Kind::strayRow:
        return "strayRow";
    case Kind::shown:
        return "shown";
    case Kind::place:
        return "place";
    case Kind::title:
        return "title";
    case Kind::folderTitle:
        return "folderTitle";
    case Kind::tile:
        return "tile";
    case Kind::tileLabel:
        return "tileLabel";
    case Kind::hiddenThemeIcon:
        return "hiddenThemeIcon";
    case Kind::themeIcon:
        return "themeIcon";
    case Kind::theme:
        return "theme";
    }
    return {};
}

std::vector<StoreChange> changesBetween(const ApplyStores& before, const ApplyStores& after) {
    Changes changes;
    noteApps(changes, before, after);
    noteTiles(changes, before, after);
    noteNames(changes, Kind::wrapper, {}, before.wrappers, after.wrappers);
    noteNames(changes, Kind::strayRow, {}, before.strayWrapperRows, after.strayWrapperRows);
    noteIcons(changes, before, after);
    noteThemes(changes, before, after);
    return changes.sorted();
}

} // namespace tavrik
