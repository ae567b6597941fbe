#include "ui/models/BackupDetail.h"

#include "app/Managers.h"
#include "ui/models/Background.h"
#include "ui/models/CoreWords.h"
#include "ui/models/DifferenceWords.h"
#include "ui/models/Text.h"

#include <variant>

namespace tavrik {

/// What the background found.
struct BackupDetail::Reading {
    std::string problem;
    LayoutDrawing drawing;
    std::string sinceProblem;
    LayoutDifferences since;
};

void BackupDetail::show(const std::optional<MacPath>& backup) {
    const int request = ++m_request;
    m_isReading = backup.has_value();
    if (!backup)
        take({});
    else
        m_with.background.run(
            this, [&managers = m_with.managers, backup = *backup] { return read(managers, backup); },
            [this, request](const Reading& reading) {
                if (request != m_request)
                    return;
                m_isReading = false;
                take(reading);
            });
    Q_EMIT changed();
}

BackupDetail::Reading BackupDetail::read(Managers& managers, const MacPath& backup) {
    Reading found;
    const BackupReading reading = managers.backups.readBackup(backup);
    const auto* const contents = std::get_if<BackupContents>(&reading);
    const auto layout =
        contents ? summaryOf(*contents) : Result<LayoutSummary>(Error{inWords(std::get<BackupFault>(reading))});
    if (!layout) {
        found.problem = layout.error().description;
        return found;
    }
    std::map<std::string, MacPath> apps;
    for (const ApplicationInfo& app : managers.apps.loadApplications())
        apps.emplace(app.bundleID, app.path);
    found.drawing = drawingOf(*layout, apps);
    if (const auto now = managers.backups.summaryOfLiveStores(); now)
        found.since = differences(*layout, *now);
    else
        found.sinceProblem = now.error().description;
    return found;
}

void BackupDetail::take(const Reading& reading) {
    m_problem = inTheirLanguage(reading.problem);
    m_drawing = reading.drawing;
    m_sinceLines = wordedDifferences(reading.since);
    if (!reading.sinceProblem.empty())
        m_since = tr("What has changed since cannot be told. %1").arg(inTheirLanguage(reading.sinceProblem));
    else if (reading.since.empty())
        m_since = tr("Nothing has moved since.");
    else
        m_since = tr("Since then: %1.").arg(countedDifferences(reading.since));
    Q_EMIT changed();
}

} // namespace tavrik
