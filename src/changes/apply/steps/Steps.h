#pragma once

#include "changes/apply/ApplyRun.h"

/// The steps of an apply, each in a file of its own, in the order in which they run. Background thread.
namespace tavrik {

/// Mirrors what is staged to the recovery file, takes the snapshot that the rest works on, reads the stores and
/// plans. Stops with nothing changed when nothing is staged, when the recovery file cannot be written, and when
/// something stands in the way.
Next prepare(ApplyRun& run);

/// Asks, and ends the running applications that are to be restyled. Stops with nothing changed when the person
/// declines or one of them does not end.
Next closeAffectedApps(ApplyRun& run);

/// Stops with nothing changed when there is no good backup.
Next takeSafetyBackup(ApplyRun& run);

Next report(ApplyRun& run);
Next countSteps(ApplyRun& run);

/// Carries out the staged hides and deletions of the theme library.
Next changeThemes(ApplyRun& run);

/// Brings the icons of each application to their places and records which one is in use.
Next transferIcons(ApplyRun& run);

/// Updates, removes and creates wrappers. An application that fails is put back and collected.
Next changeWrappers(ApplyRun& run);

Next restartInBetween(ApplyRun& run);
Next changeTitles(ApplyRun& run);
Next restartAtTheEnd(ApplyRun& run);

/// Reads both stores back and compares them with the plan.
Next audit(ApplyRun& run);

/// Drops what was staged, unless it could not be brought about, and takes the sheet away.
Next finish(ApplyRun& run);

Next notify(ApplyRun& run);

} // namespace tavrik
