#pragma once

#include "changes/IconRow.h"
#include "icons/list/ApplicationRow.h"

#include <string>

namespace tavrik {

class FontReplacer;
class PendingChangesManager;
class SettingsManager;
class UnsupportedAppsManager;
struct CatalogueReading;
struct StagedChanges;

/// How a record of the catalogue becomes a row, the same for everything that lists applications.

/// The row of a record, but for its icons and for the shape of the application's own one. Any thread.
ApplicationRow describedRow(const ApplicationInfo& app, const CatalogueReading& reading,
                            const FontReplacer& fonts, const UnsupportedAppsManager& unsupported);

/// The icons of an application as they are staged, or else stored, before anything is checked. Main thread.
IconRow recordedIcons(const std::string& bundleID, const StagedChanges& staged,
                      const PendingChangesManager& pendingChanges, SettingsManager& settings);

} // namespace tavrik
