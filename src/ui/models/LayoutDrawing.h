#pragma once

#include "backups/BackupSummary.h"
#include "platform/Path.h"

#include <QVariantList>

#include <map>
#include <string>

namespace tavrik {

/// What a small drawing of a layout shows.
struct LayoutDrawing {
    /// A page each: { title, items }, an item { title, path, isFolder, members }. A path is of the application
    /// whose own icon is shown, and empty where it is not installed; members are the paths of a folder's first
    /// ones.
    QVariantList pages;
    QVariantList tiles; ///< of the Dock: { title, path }
};

/// `apps` says where each application is, by its identifier. What Launchpad hides is left out.
LayoutDrawing drawingOf(const LayoutSummary& layout, const std::map<std::string, MacPath>& apps);

} // namespace tavrik
