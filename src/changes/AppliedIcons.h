#pragma once

#include "platform/Path.h"

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tavrik {

class FileManager;
class IconStore;
class SettingsManager;

/// The icons of applications as they are applied: what is on disk and in the settings, which always have the
/// last word. What was seen of an application is remembered, so that the log tells when something else changed
/// its icons meanwhile. Main thread; reads folders.
class AppliedIcons {
public:
    AppliedIcons(const FileManager& files, const IconStore& store, SettingsManager& settings)
        : m_files(files),
          m_store(store),
          m_settings(settings) {}

    struct State {
        std::vector<MacPath> permanentIconPaths;
        std::optional<std::int64_t> selectedIcon; ///< the number of a permanent icon; maybe of none there is

        /// The place of the selected icon in a row; nothing when the row does not have it.
        std::optional<int> placeIn(const std::vector<MacPath>& displayPaths) const;

        /// Whether an index of a row that shows just the permanent icons chooses what is in use.
        bool isChosenBy(std::optional<int> index) const;

        /// The numbers of the permanent icons.
        std::set<int> numbers() const;

        bool operator==(const State&) const = default;
    };

    /// A link or a folder under the name of an icon is none, and of two icons with the same number the second
    /// one is out of sight until an apply has renumbered them, since removing is by number.
    State look(const std::string& bundleID);

    /// Forgets what was seen: the program itself has changed it.
    void forget() { m_lastAppliedState.clear(); }

private:
    const FileManager& m_files;
    const IconStore& m_store;
    SettingsManager& m_settings;
    std::map<std::string, State> m_lastAppliedState;
};

} // namespace tavrik
