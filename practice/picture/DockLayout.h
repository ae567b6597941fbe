#pragma once

#include "platform/FileManager.h"
#include "platform/Path.h"
#include "platform/Result.h"

#include <string>
#include <vector>

/// What the Dock shows, as plain records.
namespace tavrik::practice {

enum class TileKind { app, folder, file, spacer, smallSpacer };

struct DockTile {
    TileKind kind = TileKind::app;
    std::string label;
    std::string bundleID;
    MacPath path; ///< where its bookmark, or else its URL, leads; empty when neither leads anywhere

    bool operator==(const DockTile&) const = default;
};

struct DockLayout {
    std::vector<DockTile> apps;
    std::vector<DockTile> recents; ///< empty when recent applications are not shown
    std::vector<DockTile> others;
};

/// Reads the Dock's preferences; what is not of the expected type is passed over. An error when the file cannot
/// be read at all. Blocks on the disk.
Result<DockLayout> readDockLayout(const FileManager& files, const MacPath& preferences);

} // namespace tavrik::practice
