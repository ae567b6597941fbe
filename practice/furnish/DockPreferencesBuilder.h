#pragma once

#include "platform/Bytes.h"
#include "platform/Date.h"
#include "platform/PropertyList.h"

#include <cstdint>
#include <string>

namespace tavrik::practice {

/// What a tile of the Dock shows.
struct DockTile {
    std::string label;
    std::string bundleID;
    std::string url; ///< "file:///Applications/Atlas.app/"
    Bytes bookmark;
    Date modified;
    Date folderModified;    ///< of the folder that the target stands in
    bool hasPlugIn = false; ///< "dock-extra"
};

/// Builds the Dock's preferences tile by tile, in the form that the Dock itself writes, with the other keys
/// that a Mac in use has. One thread.
class DockPreferencesBuilder {
public:
    void addApp(const DockTile& tile);
    void addSpacer();
    void addRecentApp(const DockTile& tile);
    /// A folder on the right of the line; it needs no bundle identifier.
    void addFolder(const DockTile& tile);

    plist::Value build() const;

private:
    plist::Value tile(const char* type, plist::Dictionary data);

    plist::Array m_apps;
    plist::Array m_others;
    plist::Array m_recents;
    std::int64_t m_nextGUID = 3'318'046'201;
};

} // namespace tavrik::practice
