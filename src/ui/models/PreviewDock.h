#pragma once

#include "platform/PropertyList.h"
#include "ui/models/PreviewScene.h"

#include <vector>

namespace tavrik {

class PreviewChanges;
struct Mac;

/// The Dock from its preferences, from one end to the other: the Finder, the applications that are kept in it,
/// the recent ones, the folders and documents, the Trash; and the lines and gaps between them. Only the
/// applications that are kept may look otherwise afterwards. Background thread; blocks on the disk.
std::vector<PreviewItem> readPreviewDock(plist::Value& preferences, const Mac& mac,
                                         const PreviewChanges& changes);

} // namespace tavrik
