#pragma once

#include "backups/BackupManager.h"
#include "backups/BackupSummary.h"
#include "changes/IconRow.h"
#include "changes/StagedChanges.h"
#include "changes/apply/ApplyPipeline.h"
#include "fonts/FontReplacer.h"
#include "model/ApplicationInfo.h"
#include "model/SettingsRecords.h"
#include "system/DockManager.h"

#include <QJsonArray>
#include <QJsonObject>

#include <map>
#include <optional>
#include <string>
#include <vector>

/// Records as programs read them: a list is an array, a record an object whose keys are the record's field
/// names. Dates are ISO 8601 in UTC, paths are the Mac's, and an application's icon is the bundle that it is
/// read from.
namespace tavrik {

QJsonArray toJson(const std::vector<ApplicationInfo>& apps);
QJsonArray toJson(const std::vector<DockApp>& apps);
/// Each with its "bundleID".
QJsonArray toJson(const std::map<std::string, TavrikMapping>& mappings);

/// With its "bundleID", and with "displayPaths".
QJsonObject toJson(const std::string& bundleID, const IconRow& row);
/// With its "timestamp". What is not there is null.
QJsonObject toJson(const StagedChanges& staged, const std::optional<Date>& timestamp);

/// The styles by "name", each with the "preview": the text written in it, or its name when that is empty.
QJsonArray toJson(const FontReplacer& fonts, const std::string& preview);

/// With "url" as a file URL.
QJsonArray toJson(const std::vector<BackupListItem>& backups);
/// The item with what it holds, "launchpad" and "dock", and the "differences" of the present to it; null when
/// those are not known. A folder is told from an application by its "pages".
QJsonObject toJson(const BackupListItem& backup, const LayoutSummary& layout,
                   const std::optional<LayoutDifferences>& differences);
/// The groups, the number of restarts, the changes and the obstacles.
QJsonObject toJson(const ApplyPipeline::Preview& preview);

std::string jsonText(const QJsonArray& array);
std::string jsonText(const QJsonObject& object);

} // namespace tavrik
