#include "cli/DoctorCommand.h"

#include "cli/Companion.h"
#include "cli/HealthWords.h"
#include "cli/Json.h"
#include "cli/Staged.h"
#include "maintenance/HealthCheck.h"
#include "maintenance/HealthRepair.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace tavrik {

namespace {

using Findings = std::vector<HealthFinding>;
using Remedy = HealthFinding::Remedy;

Findings check(Companion& companion) {
    companion.managers().themes.loadThemes();
    return checkHealth(companion.managers().applyServices);
}

/// A program that may write puts some things right as it opens, so they are looked at before, and beside
/// whatever runs.
std::optional<Findings> look(Companion& companion) {
    std::optional<Companion> looking(companion.opener());
    std::optional<Findings> findings;
    if (looking->open(Access::looking) == ExitCode::done)
        findings = check(*looking);
    companion.onMain([&] { looking.reset(); });
    return findings;
}

bool isWrong(const HealthFinding& finding) {
    return finding.remedy != Remedy::notNeeded;
}

void sayFindings(Companion& companion, const Findings& findings) {
    if (std::ranges::none_of(findings, isWrong))
        companion.say("Everything is as it should be.");
    std::string group;
    for (const HealthFinding& finding : findings) {
        if (const std::string heading = headingOf(finding); heading != group) {
            companion.say("\n" + heading);
            group = heading;
        }
        companion.say("  " + finding.sentence);
        companion.say("    " + finding.advice);
    }
}

/// Adds to what was found what is found only now, and to the outcomes what is not found any more.
HealthRepair mend(Companion& companion, Findings& found) {
    const Findings now = check(companion);
    HealthRepair repair = repairHealth(companion.managers().applyServices, now);
    const auto isIn = [](const Findings& findings, const HealthFinding& finding) {
        return std::ranges::any_of(findings, [&](const HealthFinding& each) { return isSame(each, finding); });
    };
    for (const HealthFinding& finding : found) {
        if (!isIn(now, finding) && finding.remedy == Remedy::repair)
            repair.outcomes.push_back(
                {finding, true,
                 "It was right when the repair began: opening Tavrik and the Dock put it right."});
    }
    for (const HealthFinding& finding : now) {
        if (!isIn(found, finding))
            found.push_back(finding);
    }
    return repair;
}

void sayRepair(Companion& companion, const HealthRepair& repair) {
    if (!repair.outcomes.empty())
        companion.say("\nThe repair");
    for (const HealthRepair::Outcome& outcome : repair.outcomes) {
        companion.say((outcome.isMended ? "  Mended: " : "  Not mended: ") + outcome.finding.sentence);
        companion.say("    " + outcome.sentence);
    }
    if (repair.backup)
        companion.say("The state before is in the backup \"" + *repair.backup + "\".");
    if (repair.hasStaged)
        companion.say(
            "Something is staged: \"tavrikctl plan\" tells what, and \"tavrikctl apply\" applies it.");
}

} // namespace

ExitCode DoctorCommand::run(Companion& companion) {
    auto found = look(companion);
    if (!found)
        return ExitCode::failed;
    if (!json)
        sayFindings(companion, *found);
    if (!repair || found->empty()) {
        if (json)
            companion.say(jsonText(toJson(*found)));
        return std::ranges::any_of(*found, isWrong) ? ExitCode::failed : ExitCode::done;
    }

    if (const ExitCode opened = companion.open(Access::writing); opened != ExitCode::done)
        return opened;
    // What cannot be taken up is a finding of its own.
    companion.onMain([&] { ignoreFailure(companion.managers().pendingChanges.recover()); });
    companion.host().startSession();
    const HealthRepair mended = mend(companion, *found);
    if (json)
        companion.say(jsonText(toJson(*found, mended)));
    else
        sayRepair(companion, mended);
    const bool isAllMended = std::ranges::all_of(*found, [&](const HealthFinding& finding) {
        const auto outcome = std::ranges::find_if(
            mended.outcomes, [&](const HealthRepair::Outcome& each) { return isSame(each.finding, finding); });
        return !isWrong(finding) || (outcome != mended.outcomes.end() && outcome->isMended);
    });
    return isAllMended ? ExitCode::done : ExitCode::failed;
}

} // namespace tavrik
