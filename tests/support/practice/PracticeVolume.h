#pragma once

#include "platform/Path.h"
#include "platform/PropertyList.h"
#include "practice/furnish/Furnish.h"
#include "support/TemporaryFolder.h"

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace tavrik::test {

/// A row of the Launchpad database, with what the detail tables say about it.
struct LaunchpadItem {
    std::int64_t row = 0;
    int type = 0; ///< 1 root, 2 folder, 3 page, 4 application
    std::optional<std::int32_t> flags;
    std::int64_t parent = 0;
    std::int32_t ordering = 0;
    std::string title;    ///< of an application or a folder
    std::string bundleID; ///< as stored
    MacPath path;         ///< that the bookmark records, there or not

    bool operator==(const LaunchpadItem&) const = default;
};

std::ostream& operator<<(std::ostream& out, const LaunchpadItem& item);

/// A tile of the Dock's pinned applications.
struct PinnedTile {
    std::string bundleID; ///< empty for a spacer
    std::string label;
    std::string url;
    MacPath path; ///< that the bookmark records

    bool operator==(const PinnedTile&) const = default;
};

std::ostream& operator<<(std::ostream& out, const PinnedTile& tile);

/// A freshly furnished Mac in a temporary folder, gone at the end. Its icons are small, which makes it cheap.
/// Without programs it has no system tools and no Dock. What cannot be read throws, which fails the test.
class PracticeVolume {
public:
    explicit PracticeVolume(const practice::Programs& programs = {});

    const HostPath& root() const { return m_root; }

    /// Where the host keeps a path of the Mac.
    HostPath host(const MacPath& path) const { return m_root / path.string(); }

    HostPath launchpadDatabase() const;

    /// All rows, by number.
    std::vector<LaunchpadItem> launchpadItems() const;
    /// The rows of applications with this identifier.
    std::vector<LaunchpadItem> appRows(std::string_view bundleID) const;

    plist::Value dockPreferences() const;
    std::vector<PinnedTile> pinnedTiles() const;

    /// Any property list of the Mac.
    plist::Value propertyList(const MacPath& file) const;

private:
    TemporaryFolder m_folder;
    HostPath m_root;
};

} // namespace tavrik::test
