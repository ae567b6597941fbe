#include "cli/BackupCommands.h"

#include "cli/BackupLookup.h"
#include "cli/Companion.h"
#include "cli/Json.h"
#include "cli/LayoutWords.h"
#include "cli/Staged.h"
#include "cli/Table.h"
#include "cli/Words.h"
#include "platform/Log.h"
#include "platform/PrivacyRefusal.h"

#include <algorithm>
#include <functional>

namespace tavrik {

namespace {

std::string quoted(const std::string& name) {
    return "\"" + name + "\"";
}

/// Of the dated backups, how many go when one more is taken.
std::size_t excess(const std::vector<BackupListItem>& backups, std::int64_t keep) {
    if (backups.empty())
        return 0; // the next one becomes the original state, which does not count
    const auto dated = std::ranges::count_if(backups, std::not_fn(isOriginalState));
    return static_cast<std::size_t>(std::max<std::int64_t>(dated + 1 - keep, 0));
}

/// How the live state differs; nothing, its reason told, when that cannot be read.
std::optional<LayoutDifferences> sinceThen(Companion& companion, const LayoutSummary& then) {
    // What is logged on the way is about a copy that nobody keeps.
    setLogStream(nullptr);
    const Result<LayoutSummary> now = companion.managers().backups.summaryOfLiveStores();
    if (now)
        return differences(then, *now);
    companion.complain("What has changed since cannot be told. " + now.error().description);
    return std::nullopt;
}

} // namespace

ExitCode BackupCreateCommand::run(Companion& companion) {
    if (const ExitCode opened = companion.open(Access::writing); opened != ExitCode::done)
        return opened;
    const Result<MacPath> backup = companion.managers().backups.createBackup();
    if (!backup)
        return companion.fail(backup.error().description);
    const std::string name = backup->stem();
    companion.say("The backup " + quoted(name) + " is taken. \"tavrikctl backup show " + typed(name) +
                  "\" tells what it holds.");
    return ExitCode::done;
}

ExitCode BackupListCommand::run(Companion& companion) {
    if (const ExitCode opened = companion.open(Access::looking); opened != ExitCode::done)
        return opened;
    const auto backups = listedBackups(companion);
    if (!backups)
        return companion.fail(backups.error().description);
    if (json) {
        companion.say(jsonText(toJson(*backups)));
        return ExitCode::done;
    }
    if (backups->empty()) {
        companion.say("There is no backup yet. \"tavrikctl backup create\" takes the first, which is kept for "
                      "good.");
        return ExitCode::done;
    }
    Table table({"Name", "Taken", "Size", "Remarks"});
    for (const BackupListItem& backup : *backups) {
        table.add({backup.id, localText(backup.date), sizeText(backup.sizeInKB),
                   isOriginalState(backup) ? "kept for good" : ""});
    }
    companion.say(table.text());
    return ExitCode::done;
}

ExitCode BackupShowCommand::run(Companion& companion) {
    if (const ExitCode opened = companion.open(Access::looking); opened != ExitCode::done)
        return opened;
    const Result<BackupListItem> backup = findBackup(companion, name);
    if (!backup)
        return companion.fail(backup.error().description);
    const BackupReading reading = companion.managers().backups.readBackup(backup->url);
    const auto* contents = std::get_if<BackupContents>(&reading);
    if (!contents)
        return companion.fail(inWords(std::get<BackupFault>(reading)));
    const Result<LayoutSummary> layout = summaryOf(*contents);
    if (!layout)
        return companion.fail(layout.error().description);

    const auto since = sinceThen(companion, *layout);
    if (json) {
        companion.say(jsonText(toJson(*backup, *layout, since)));
        return ExitCode::done;
    }
    companion.say(backup->id + ", taken " + localText(backup->date) + ", " + sizeText(backup->sizeInKB));
    for (const std::string& line : inWords(*layout))
        companion.say(line);
    if (!since)
        return ExitCode::done;
    companion.say("\nSince then, restyled applications and styled names aside, which no backup holds:");
    for (const std::string& line : inWords(*since))
        companion.say(line);
    if (since->empty())
        companion.say("Nothing has changed.");
    return ExitCode::done;
}

ExitCode BackupVerifyCommand::run(Companion& companion) {
    if (const ExitCode opened = companion.open(Access::looking); opened != ExitCode::done)
        return opened;
    const auto backups = chosen(companion);
    if (!backups)
        return companion.fail(backups.error().description);
    if (backups->empty())
        return companion.refuse("There is no backup yet, so there is nothing to check.");
    std::size_t bad = 0;
    for (const BackupListItem& backup : *backups) {
        const BackupReading reading = companion.managers().backups.readBackup(backup.url);
        if (const auto* fault = std::get_if<BackupFault>(&reading)) {
            companion.complain(backup.id + ": " + inWords(*fault));
            ++bad;
        } else {
            companion.say(backup.id + ": good.");
        }
    }
    return bad == 0 ? ExitCode::done : ExitCode::failed;
}

Result<std::vector<BackupListItem>> BackupVerifyCommand::chosen(Companion& companion) const {
    if (!isNamed)
        return listedBackups(companion);
    Result<BackupListItem> named = findBackup(companion, name);
    if (!named)
        return named.error();
    return std::vector{std::move(*named)};
}

ExitCode BackupRestoreCommand::run(Companion& companion) {
    if (const ExitCode opened = companion.open(Access::writing); opened != ExitCode::done)
        return opened;
    const Result<BackupListItem> backup = findBackup(companion, name);
    if (!backup)
        return companion.fail(backup.error().description);
    Managers& managers = companion.managers();
    const auto staged = lookAtStaged(companion);
    const bool wasStaged = !staged || !staged->changes.empty();
    const std::vector<MacPath> earlier = managers.backups.listBackups();

    if (const Status restored = managers.backups.restoreBackup(backup->url); !restored) {
        return isPrivacyRefusal(restored.error())
                   ? companion.refuse("Nothing was changed. " + restored.error().description)
                   : companion.fail(restored.error().description);
    }
    // Not before: the Dock writes when it starts, and a backup of no use is no reason to start it.
    companion.host().startSession();
    managers.launchpad.restartDock();

    companion.say("Launchpad and the Dock are as in the backup " + quoted(backup->id) + ".");
    const std::vector<MacPath> now = managers.backups.listBackups();
    if (!now.empty() && std::ranges::find(earlier, now.back()) == earlier.end()) {
        companion.say("What was there before is in the backup " + quoted(now.back().stem()) +
                      ", but for wrappers and styled names: \"tavrikctl backup restore " +
                      typed(now.back().stem()) + "\" goes back to it.");
    } else {
        companion.say("What was there before could not be backed up: its files were missing or damaged.");
    }
    if (wasStaged)
        companion.say("What was staged is dropped.");
    return ExitCode::done;
}

ExitCode BackupKeepCommand::run(Companion& companion) {
    if (const ExitCode opened = companion.open(Access::writing); opened != ExitCode::done)
        return opened;
    SettingsManager& settings = companion.managers().settings;
    settings.setBackupRetentionCount(count);
    if (settings.getBackupRetentionCount() != count)
        return companion.fail("The number could not be saved; the lines above say why.");
    companion.say("From now on the newest " +
                  (count == 1 ? "dated backup is" : std::to_string(count) + " dated backups are") +
                  " kept, and the Original State for good.");
    const auto backups = listedBackups(companion);
    if (!backups)
        return companion.fail(backups.error().description);
    if (const std::size_t deleted = excess(*backups, count); deleted > 0)
        companion.say("Nothing is deleted now; the next snapshot deletes " + counted(deleted, "backup") + ".");
    return ExitCode::done;
}

} // namespace tavrik
