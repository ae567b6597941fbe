#include "cli/StagingCommands.h"

#include "cli/Companion.h"
#include "cli/Json.h"
#include "cli/Staged.h"
#include "cli/Words.h"

namespace tavrik {

namespace {

void sayInWords(Companion& companion, const StagedChanges& staged) {
    AppNames names = namesOf(companion.managers().apps.loadApplications());
    const bool namesThemes = !staged.pendingThemeIconHides.empty() ||
                             !staged.pendingThemeIconDeletions.empty() || !staged.pendingThemeDeletions.empty();
    for (const Theme& theme : namesThemes ? companion.managers().themes.library().load() : std::vector<Theme>())
        names.emplace(theme.themeID, theme.name);
    for (const std::string& line : inWords(staged, names))
        companion.say(line);
}

} // namespace

ExitCode StatusCommand::run(Companion& companion) {
    if (const ExitCode opened = companion.open(Access::looking); opened != ExitCode::done)
        return opened;
    const auto staged = lookAtStaged(companion);
    if (!staged)
        return companion.fail(staged.error().description);
    if (json) {
        companion.say(jsonText(toJson(staged->changes, staged->timestamp)));
        return ExitCode::done;
    }
    if (staged->changes.empty()) {
        companion.say("Nothing is staged.");
        return ExitCode::done;
    }
    sayInWords(companion, staged->changes);
    if (staged->timestamp)
        companion.say("Staged at " + isoText(*staged->timestamp) + ", and not applied.");
    if (!companion.managers().iconTransfer.interrupted().empty())
        companion.say("An apply was interrupted. \"tavrikctl recover\" finds the icons that it had moved.");
    return ExitCode::done;
}

ExitCode DiscardCommand::run(Companion& companion) {
    if (const ExitCode opened = companion.open(Access::writing); opened != ExitCode::done)
        return opened;
    const auto staged = lookAtStaged(companion);
    if (staged && !staged->isThere)
        return companion.refuse("Nothing is staged, so there is nothing to discard.");
    PendingChangesManager& pending = companion.managers().pendingChanges;
    companion.onMain([&] { pending.clearAllPendingChanges(); });
    if (const auto after = lookAtStaged(companion); !after || after->isThere)
        return companion.fail("What is staged could not be dropped; the lines above say why.");
    if (!staged) {
        companion.say(
            "The file of what was staged could not be read. It was put aside, as the lines above say.");
    } else {
        companion.say("This is no longer staged:");
        sayInWords(companion, staged->changes);
    }
    return ExitCode::done;
}

ExitCode RecoverCommand::run(Companion& companion) {
    if (const ExitCode opened = companion.open(Access::writing); opened != ExitCode::done)
        return opened;
    const auto found = lookAtStaged(companion);
    if (const ExitCode taken = takeUpStaged(companion); taken != ExitCode::done)
        return taken;
    if (!found || found->changes.empty())
        return companion.refuse("There is nothing to recover.");
    const StagedChanges staged = companion.onMain([&] { return companion.managers().pendingChanges.staged(); });
    if (staged.empty())
        return companion.fail("Nothing of what was staged could be recovered; the lines above say why.");
    sayInWords(companion, staged);
    return ExitCode::done;
}

} // namespace tavrik
