#pragma once

#include "backups/BackupSummary.h"

#include <QString>
#include <QStringList>

namespace tavrik {

/// How much has changed: "3 apps moved, 2 new in Launchpad". Empty when nothing has.
QString countedDifferences(const LayoutDifferences& since);

/// What has changed, a sentence for each kind of change and each move.
QStringList wordedDifferences(const LayoutDifferences& since);

} // namespace tavrik
