#include "cli/ApplyCommands.h"

#include "changes/apply/ManualRefresh.h"
#include "changes/apply/StoreChangeWords.h"
#include "cli/Companion.h"
#include "cli/Json.h"
#include "cli/Staged.h"
#include "cli/TerminalProgress.h"
#include "cli/Words.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace tavrik {

namespace {

using End = ApplyResult::End;

constexpr const char* kNothingStaged = "Nothing is staged, so there is nothing to apply.";

/// What subjects of changes are called.
AppNames subjectNames(Managers& managers) {
    AppNames names = namesOf(managers.apps.loadApplications());
    for (const Theme& theme : managers.themes.installedThemes())
        names.emplace(theme.themeID, theme.name);
    return names;
}

std::string listed(const std::vector<std::string>& bundleIDs, const AppNames& names) {
    std::string list;
    for (const std::string& bundleID : bundleIDs)
        list += (list.empty() ? "" : ", ") + nameIn(names, bundleID);
    return list;
}

void sayGroup(Companion& companion, const char* what, const std::vector<std::string>& bundleIDs,
              const AppNames& names) {
    if (!bundleIDs.empty())
        companion.say(std::string(what) + listed(bundleIDs, names));
}

/// They are sorted by their kind.
void sayChanges(Companion& companion, const std::vector<StoreChange>& changes, const AppNames& names) {
    std::optional<StoreChange::Kind> kind;
    for (const StoreChange& change : changes) {
        if (kind != change.kind) {
            kind = change.kind;
            const auto count = std::ranges::count(changes, change.kind, &StoreChange::kind);
            companion.say("\n" + headingOf(change.kind) + " (" + std::to_string(count) + ")");
        }
        companion.say("  " + inWords(change, nameIn(names, change.subject)));
    }
    if (!changes.empty())
        companion.say("");
}

void sayPlan(Companion& companion, const ApplyPlan& plan, const AppNames& names) {
    sayGroup(companion, "Restyled for the first time: ", plan.created, names);
    sayGroup(companion, "Get another icon: ", plan.updated, names);
    sayGroup(companion, "Get their own look back: ", plan.removed, names);
    sayChanges(companion, plan.changes, names);
    companion.say("A backup is taken before. The Dock is restarted " +
                  counted(static_cast<std::size_t>(plan.dockRestarts()), "time") + ".");
}

void sayResult(Companion& companion, const ApplyResult& result) {
    for (const auto& app : result.failedApps)
        companion.complain(app.name + ": " + app.reason);
    for (const Deviation& deviation : result.deviations)
        companion.complain("Not as planned: " + deviation.sentence);
    if (!result.isAudited)
        companion.complain(
            "Launchpad and the Dock could not be read back, so nobody has looked whether they show it.");
    if (result.backup)
        companion.say("The state before is in the backup \"" + result.backup->stem() + "\".");
}

} // namespace

ExitCode PlanCommand::run(Companion& companion) {
    if (const ExitCode opened = companion.open(Access::reading); opened != ExitCode::done)
        return opened;
    const auto staged = lookAtStaged(companion);
    if (!staged)
        return companion.fail(staged.error().description);
    Managers& managers = companion.managers();
    managers.themes.loadThemes();
    const ApplyPipeline::Preview preview = managers.apply.preview(staged->changes);
    if (json) {
        companion.say(jsonText(toJson(preview)));
        return ExitCode::done;
    }
    if (staged->changes.empty()) {
        companion.say(kNothingStaged);
        return ExitCode::done;
    }
    sayPlan(companion, preview.plan, subjectNames(managers));
    for (const ApplicationInfo& app : preview.runningApps)
        companion.say("To be closed before: " + app.name);
    for (const std::string& obstacle : preview.obstacles)
        companion.say("In the way: " + obstacle);
    return ExitCode::done;
}

ExitCode ApplyCommand::run(Companion& companion) {
    if (const ExitCode opened = companion.open(Access::writing); opened != ExitCode::done)
        return opened;
    if (const ExitCode taken = takeUpStaged(companion); taken != ExitCode::done)
        return taken;
    if (closeRunningApps)
        companion.alerts().pressFirstButtons();
    Managers& managers = companion.managers();
    managers.themes.open();
    companion.host().startSession();

    ApplyResult result;
    {
        const TerminalProgress progress(managers.progress, managers.notificationCenter);
        result = managers.apply.applyChanges();
    }
    switch (result.end) {
    case End::nothingStaged:
        return companion.refuse(kNothingStaged);
    case End::refused:
    case End::cancelled:
        for (const std::string& reason : result.reasons)
            companion.complain(reason);
        if (result.end == End::cancelled && !closeRunningApps)
            companion.complain("\"tavrikctl apply --close-running-apps\" closes them without asking.");
        return companion.refuse("Nothing was changed. What is staged stays staged.");
    case End::applied:
        break;
    }
    sayResult(companion, result);
    if (!result.failedApps.empty() || !result.deviations.empty() || !result.isAudited)
        return companion.fail("Not everything went as planned, as told above. The rest is applied.");
    companion.say("Everything is applied. \"tavrikctl picture FILE.png\" draws it.");
    return ExitCode::done;
}

ExitCode RefreshCommand::run(Companion& companion) {
    if (const ExitCode opened = companion.open(Access::writing); opened != ExitCode::done)
        return opened;
    Managers& managers = companion.managers();
    if (!managers.launchpadDatabase.isWritable())
        return companion.refuse(
            "The Launchpad database is locked by another program, so nothing was changed. Close that "
            "program, or try again in a moment.");
    managers.themes.open();
    companion.host().startSession();
    const std::size_t count = manualRefresh(managers.applyServices);
    companion.say("The icons of " + counted(count, "application") +
                  " were written again, and the Dock was restarted.");
    return ExitCode::done;
}

} // namespace tavrik
