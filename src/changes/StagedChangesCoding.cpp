#include "changes/StagedChangesCoding.h"

#include "fonts/FontReplacer.h"
#include "icons/IconStore.h"
#include "platform/PathComponent.h"

#include <algorithm>

namespace tavrik {

namespace {

constexpr const char* kIconChanges = "iconChanges";
constexpr const char* kIconPaths = "iconPaths";
constexpr const char* kSelectedIndex = "selectedIndex";
constexpr const char* kMarkedForDeletion = "markedForDeletion";
constexpr const char* kUnfinished = "unfinished";
constexpr const char* kThemeIconHides = "themeIconHides";
constexpr const char* kThemeID = "themeID";
constexpr const char* kIconFileName = "iconFileName";
constexpr const char* kThemeIconDeletions = "pendingThemeIconDeletions";
constexpr const char* kThemeDeletions = "pendingThemeDeletions";
constexpr const char* kPendingFont = "pendingFont";
constexpr const char* kPendingReset = "pendingReset";
constexpr const char* kTimestamp = "timestamp";

constexpr std::int64_t kLargestIndex = 999'999'999;

template<typename Items>
plist::Array arrayOf(const Items& items) {
    return plist::Array(items.begin(), items.end());
}

plist::Dictionary encode(const IconChange& change) {
    plist::Array paths;
    for (const MacPath& path : change.iconPaths)
        paths.emplace_back(path.string());
    plist::Dictionary fields{{kIconPaths, std::move(paths)}};
    if (change.selectedIndex)
        fields.emplace(kSelectedIndex, *change.selectedIndex);
    return fields;
}

/// A name for a line of the log, in which an untrusted one must not begin a new line or grow without end.
std::string printable(std::string_view name) {
    constexpr std::size_t most = 300;
    std::string text(name.substr(0, most));
    std::ranges::replace_if(text, [](char c) { return static_cast<unsigned char>(c) < 0x20; }, '?');
    return text;
}

/// Reads the keys one after the other; what it refuses becomes a remark.
class Decoder {
public:
    Decoder(const plist::Dictionary& root, const IconStore& store, const FontReplacer& fonts,
            std::vector<std::string>& remarks)
        : m_root(root),
          m_store(store),
          m_fonts(fonts),
          m_remarks(remarks) {}

    StagedChanges decode() {
        StagedChanges staged;
        forEach<plist::Dictionary>(kIconChanges, [&](const auto& entry) {
            const auto& [bundleID, value] = entry;
            if (!isSafe(bundleID, "bundle identifier"))
                return;
            if (value.template as<plist::Dictionary>())
                staged.pendingChanges.emplace(bundleID, iconChange(value, bundleID));
            else
                refuse("icon change", bundleID);
        });
        forEach<plist::Dictionary>(kMarkedForDeletion, [&](const auto& entry) {
            const auto& [bundleID, value] = entry;
            if (!isSafe(bundleID, "bundle identifier"))
                return;
            if (auto indices = hiddenIndices(value, bundleID); !indices.empty())
                staged.markedForDeletion.emplace(bundleID, std::move(indices));
        });
        std::set<std::pair<std::string, std::string>> hides;
        forEach<plist::Array>(kThemeIconHides, [&](const plist::Value& entry) {
            const auto* themeID = entry.find<std::string>(kThemeID);
            const auto* name = entry.find<std::string>(kIconFileName);
            if (!themeID || !name)
                refuse("theme icon hide", kThemeIconHides);
            else if (isSafe(*themeID, "theme identifier") && isSafe(*name, "theme icon") &&
                     hides.emplace(*themeID, *name).second)
                staged.pendingThemeIconHides.push_back({*themeID, *name});
        });
        forEach<plist::Dictionary>(kThemeIconDeletions, [&](const auto& entry) {
            const auto& [themeID, value] = entry;
            if (!isSafe(themeID, "theme identifier"))
                return;
            if (auto names = safeNames(value, "theme icon"); !names.empty())
                staged.pendingThemeIconDeletions.emplace(themeID, std::move(names));
        });
        if (const auto found = m_root.find(kThemeDeletions); found != m_root.end()) {
            for (const std::string& themeID : safeNames(found->second, "theme identifier"))
                staged.pendingThemeDeletions.insert(themeID);
        }
        if (const auto found = m_root.find(kUnfinished); found != m_root.end()) {
            for (const std::string& bundleID : safeNames(found->second, "bundle identifier")) {
                if (staged.pendingChanges.contains(bundleID))
                    staged.unfinished.insert(bundleID);
            }
        }
        if (const auto* font = entryOf<std::string>(kPendingFont)) {
            if (m_fonts.hasFont(*font))
                staged.pendingFont = *font;
            else
                refuse("font", *font);
        }
        if (const auto* reset = entryOf<bool>(kPendingReset); reset && *reset) {
            if (staged.pendingFont)
                refuse("reset beside the font", *staged.pendingFont);
            else
                staged.pendingReset = true;
        }
        return staged;
    }

private:
    IconChange iconChange(const plist::Value& value, const std::string& bundleID) {
        IconChange change;
        const auto* paths = value.find<plist::Array>(kIconPaths);
        if (!paths)
            refuse("list of icons", bundleID);
        const std::size_t count = paths ? paths->size() : 0;
        const std::optional<std::size_t> selected = selectedIndex(value, bundleID);
        std::set<MacPath> known;
        for (std::size_t place = 0; place < count; ++place) {
            const auto path = iconPath((*paths)[place], bundleID);
            if (!path || !known.insert(*path).second)
                continue;
            if (selected == place)
                change.selectedIndex = static_cast<int>(change.iconPaths.size());
            change.iconPaths.push_back(*path);
        }
        // The theme icons follow the row, so they move with its end.
        if (selected && *selected >= count)
            change.selectedIndex = static_cast<int>(*selected - count + change.iconPaths.size());
        return change;
    }

    std::optional<std::size_t> selectedIndex(const plist::Value& value, const std::string& bundleID) {
        const plist::Value* entry = value.find(kSelectedIndex);
        if (!entry)
            return std::nullopt;
        const auto* index = entry->as<std::int64_t>();
        if (index && *index >= 0 && *index <= kLargestIndex)
            return static_cast<std::size_t>(*index);
        m_remarks.push_back("⚠️ Warning: Selected index " + (index ? std::to_string(*index) : "of no number") +
                            " out of bounds for " + bundleID + ", resetting to -1");
        return std::nullopt;
    }

    std::optional<MacPath> iconPath(const plist::Value& value, const std::string& bundleID) {
        const auto* text = value.as<std::string>();
        if (!text) {
            refuse("icon path", bundleID);
            return std::nullopt;
        }
        MacPath path(*text);
        if (m_store.ownsPath(path, bundleID))
            return path;
        m_remarks.push_back("⚠️ Warning: Path marked as pending but not in pending directory: " +
                            printable(*text));
        return std::nullopt;
    }

    std::set<int> hiddenIndices(const plist::Value& value, const std::string& bundleID) {
        std::set<int> indices;
        const auto* array = value.as<plist::Array>();
        if (!array) {
            refuse("list of removed icons", bundleID);
            return indices;
        }
        for (const plist::Value& item : *array) {
            const auto* index = item.as<std::int64_t>();
            if (index && *index >= 0 && *index <= kLargestIndex)
                indices.insert(static_cast<int>(*index));
            else
                m_remarks.push_back("⚠️ Warning: Invalid hidden index " +
                                    (index ? std::to_string(*index) : "of no number"));
        }
        return indices;
    }

    /// Each once, in their order.
    std::vector<std::string> safeNames(const plist::Value& value, std::string_view what) {
        std::vector<std::string> names;
        std::set<std::string> known;
        const auto* array = value.as<plist::Array>();
        if (!array) {
            refuse("list", what);
            return names;
        }
        for (const plist::Value& item : *array) {
            const auto* name = item.as<std::string>();
            if (!name)
                refuse("entry", what);
            else if (isSafe(*name, what) && known.insert(*name).second)
                names.push_back(*name);
        }
        return names;
    }

    /// The entry at a key of the root; null, with a remark when something of another type is there.
    template<typename T>
    const T* entryOf(std::string_view key) {
        const auto found = m_root.find(key);
        if (found == m_root.end())
            return nullptr;
        const T* entry = found->second.template as<T>();
        if (!entry)
            refuse("value", key);
        return entry;
    }

    template<typename Container, typename Visitor>
    void forEach(std::string_view key, Visitor&& visit) {
        if (const auto* entries = entryOf<Container>(key)) {
            for (const auto& entry : *entries)
                visit(entry);
        }
    }

    bool isSafe(std::string_view name, std::string_view what) {
        const bool safe = isSafePathComponent(name);
        if (!safe)
            refuse(what, name);
        return safe;
    }

    void refuse(std::string_view what, std::string_view name) {
        m_remarks.push_back("⚠️ Warning: Recovery file: refusing " + std::string(what) + ": " + printable(name));
    }

    const plist::Dictionary& m_root;
    const IconStore& m_store;
    const FontReplacer& m_fonts;
    std::vector<std::string>& m_remarks;
};

} // namespace

plist::Dictionary encodeStagedChanges(const StagedChanges& staged, Date timestamp) {
    plist::Dictionary root{{kTimestamp, timestamp}};
    const auto add = [&root](const char* key, auto container) {
        if (!container.empty())
            root.emplace(key, std::move(container));
    };

    plist::Dictionary changes;
    for (const auto& [bundleID, change] : staged.pendingChanges)
        changes.emplace(bundleID, encode(change));
    add(kIconChanges, std::move(changes));

    plist::Dictionary marked;
    for (const auto& [bundleID, indices] : staged.markedForDeletion)
        marked.emplace(bundleID, arrayOf(indices));
    add(kMarkedForDeletion, std::move(marked));

    add(kUnfinished, arrayOf(staged.unfinished));

    plist::Array hides;
    for (const ThemeIconHide& hide : staged.pendingThemeIconHides)
        hides.emplace_back(plist::Dictionary{{kThemeID, hide.themeID}, {kIconFileName, hide.iconFileName}});
    add(kThemeIconHides, std::move(hides));

    plist::Dictionary deletions;
    for (const auto& [themeID, names] : staged.pendingThemeIconDeletions)
        deletions.emplace(themeID, arrayOf(names));
    add(kThemeIconDeletions, std::move(deletions));

    add(kThemeDeletions, arrayOf(staged.pendingThemeDeletions));
    if (staged.pendingFont)
        add(kPendingFont, *staged.pendingFont);
    if (staged.pendingReset)
        root.emplace(kPendingReset, true);
    return root;
}

StagedChanges decodeStagedChanges(const plist::Dictionary& root, const IconStore& store,
                                  const FontReplacer& fonts, std::vector<std::string>& remarks) {
    return Decoder(root, store, fonts, remarks).decode();
}

} // namespace tavrik
