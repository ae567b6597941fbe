#include "cli/RemoveEverythingCommand.h"

#include "cli/BackupLookup.h"
#include "cli/Companion.h"
#include "cli/Words.h"
#include "maintenance/Belongings.h"
#include "maintenance/RemoveEverything.h"
#include "maintenance/Traces.h"
#include "model/SettingsManager.h"
#include "system/AccessCheck.h"

#include <cstdint>

namespace tavrik {

namespace {

std::string sizeOf(std::uint64_t bytes) {
    constexpr std::uint64_t kKilobyte = 1000;
    return sizeText(static_cast<std::int64_t>((bytes + kKilobyte - 1) / kKilobyte));
}

/// What the first answer takes away.
std::string figures(const Traces& traces) {
    std::string text = counted(traces.restyled.size(), "restyled application") + " and " +
                       counted(traces.bundles.size(), "wrapper") + "; ";
    text += traces.style        ? "names in " + *traces.style + "."
            : traces.hasStyle() ? "some names in styled letters."
                                : "names in plain text.";
    if (const std::size_t half = traces.unfinished.size() + (traces.isStyleUnfinished ? 1 : 0); half > 0)
        text += " " + counted(half, "change") + " stopped half-way.";
    return text;
}

/// What the second one deletes.
std::string inWords(const Belongings& belongings) {
    const auto size = [](std::uint64_t bytes) { return " (" + sizeOf(bytes) + ")"; };
    return "the icons of all applications" + size(belongings.iconBytes) + ", " +
           counted(belongings.themes, "theme") + size(belongings.themeBytes) + ", " +
           counted(belongings.backups, "backup") + size(belongings.backupBytes) +
           (belongings.backups == 0 ? "" : ", the Original State among them") +
           ", what is staged, and the settings: all of " + belongings.folder.string() + size(belongings.bytes);
}

} // namespace

ExitCode RemoveEverythingCommand::run(Companion& companion) {
    if (const ExitCode opened = companion.open(Access::writing); opened != ExitCode::done)
        return opened;
    companion.managers().themes.loadThemes();
    const ApplyServices& with = companion.managers().applyServices;
    if (const Status access = checkAccess(with.mac, with.settings.appSupportURL()); !access)
        return companion.refuse("Nothing was changed. " + access.error().description);
    const Result<Traces> traces = readTraces(with);
    if (!traces)
        return companion.fail(traces.error().description);
    if (traces->empty()) {
        companion.say(
            "There is nothing to take back: Launchpad and the Dock are as they would be without Tavrik.");
    } else if (const ExitCode removed = removeFromSystem(companion, *traces); removed != ExitCode::done) {
        return removed;
    }
    return removeSupportFolder(companion);
}

ExitCode RemoveEverythingCommand::removeFromSystem(Companion& companion, const Traces& traces) const {
    constexpr std::size_t kRemove = 0;
    companion.say("There is: " + figures(traces));
    if (!yes &&
        companion.alerts().ask(
            {.title = "Remove Everything?",
             .text = "A backup is taken. Then every application gets its own look and name back in "
                     "Launchpad and the Dock, the wrappers are removed, and the Dock is restarted. Icons, "
                     "themes, backups and what is staged stay.",
             .buttons = {"Remove Everything", "Cancel"}}) != kRemove)
        return companion.refuse("Nothing was changed. \"tavrikctl remove-everything --yes\" does not ask.");

    Managers& managers = companion.managers();
    companion.host().startSession();
    const auto outcome = RemoveEverything(managers.applyServices).removeFromSystem();
    if (!outcome)
        return companion.refuse("Nothing was changed. " + outcome.error().description);
    for (const std::string& sentence : outcome->done)
        companion.say(sentence);
    companion.say("What was there before is in the backup \"" + outcome->backup +
                  "\", but for wrappers and styled names.");
    for (const std::string& trace : outcome->traces)
        companion.complain("Left: " + trace);
    if (!outcome->traces.empty())
        return companion.fail(
            "Not everything is taken back, as told above. Try once more; should that not help, "
            "\"tavrikctl backup restore " +
            typed(outcome->backup) + "\" puts Launchpad and the Dock back.");
    companion.say("Launchpad and the Dock were read back: nothing of Tavrik's is left in them.");
    return ExitCode::done;
}

ExitCode RemoveEverythingCommand::removeSupportFolder(Companion& companion) const {
    constexpr std::size_t kDelete = 0;
    const std::string what = inWords(readBelongings(companion.managers().applyServices));
    if (!deleteSupportFolder &&
        companion.alerts().ask({.title = "Delete What Tavrik Keeps, Too?",
                                .text = "These would go for good, and nothing brings them back: " + what + ".",
                                .buttons = {"Delete for Good", "Keep"},
                                .style = AlertStyle::critical}) != kDelete) {
        companion.say("Tavrik keeps " + what +
                      ". \"tavrikctl remove-everything --delete-support-folder\" deletes them for good.");
        return ExitCode::done;
    }
    if (const Status removed = RemoveEverything(companion.managers().applyServices).removeSupportFolder();
        !removed)
        return companion.fail(removed.error().description);
    companion.say("Deleted: " + what + ".");
    return ExitCode::done;
}

} // namespace tavrik
