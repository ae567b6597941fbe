#include "cli/Staged.h"

#include "changes/RecoveryFile.h"
#include "changes/StagedChangesCoding.h"
#include "cli/Companion.h"
#include "platform/Log.h"
#include "platform/Mac.h"

#include <cerrno>

namespace tavrik {

namespace {

RecoveryFile recoveryFile(Companion& companion) {
    return {companion.host().mac().files, companion.managers().pendingChanges.pendingChangesBaseURL()};
}

std::string unreadable(const MacPath& file, const std::string& why) {
    return "What was staged by earlier calls cannot be read: " + why + " It is in " + file.string() +
           "; \"tavrikctl discard\" puts that file aside, so that staging starts anew.";
}

} // namespace

Result<StagedOnDisk> lookAtStaged(Companion& companion) {
    const RecoveryFile file = recoveryFile(companion);
    const auto root = file.load();
    if (!root && root.error().code == ENOENT)
        return StagedOnDisk{};
    if (!root)
        return Error{unreadable(file.path(), root.error().description + ".")};
    std::vector<std::string> remarks;
    StagedOnDisk staged{.changes = decodeStagedChanges(*root, companion.managers().iconStore,
                                                       companion.managers().fonts.fontReplacer(), remarks),
                        .timestamp = {},
                        .isThere = true};
    for (const std::string& remark : remarks)
        log(remark);
    const auto written = root->find("timestamp");
    if (const auto* date = written == root->end() ? nullptr : written->second.as<Date>())
        staged.timestamp = *date;
    return staged;
}

ExitCode takeUpStaged(Companion& companion) {
    const bool taken = companion.onMain([&] { return companion.managers().pendingChanges.recover(); });
    const RecoveryFile file = recoveryFile(companion);
    if (taken || !file.exists())
        return ExitCode::done;
    return companion.fail(unreadable(file.path(), "the line above says why."));
}

ExitCode confirmStaged(Companion& companion) {
    PendingChangesManager& pending = companion.managers().pendingChanges;
    if (companion.onMain([&] { return pending.savePendingChangesToTempFile(); }))
        return ExitCode::done;
    return companion.fail("Not everything could be saved to " + pending.tempFileURL().string() +
                          "; the lines above say why. \"tavrikctl status\" tells what is staged now.");
}

} // namespace tavrik
