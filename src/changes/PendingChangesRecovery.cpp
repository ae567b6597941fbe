#include "changes/PendingChangesManager.h"
#include "changes/StagedChangesCoding.h"
#include "icons/IconFiles.h"
#include "icons/IconStore.h"
#include "icons/IconTransfer.h"
#include "model/SettingsManager.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/PathRules.h"
#include "platform/PlainFolders.h"
#include "platform/Threads.h"

#include <algorithm>
#include <cerrno>

namespace tavrik {

namespace {

/// Whether a plain file is there, and below the support folder nothing but plain folders leads to it.
Result<bool> isPlainFile(const FileManager& files, const MacPath& path, const MacPath& supportFolder) {
    const Status folders = checkPlainFolders(files, supportFolder, path.parent());
    const auto present = folders ? files.attributes(path, Links::dontFollow) : folders.error();
    if (present)
        return present->type == FileType::file;
    return present.error().code == ENOENT || present.error().code == ENOTDIR ? Result(false) : present.error();
}

} // namespace

bool PendingChangesManager::hasRecoverableChanges() const {
    assertOnMainThread("Looking for recoverable changes");
    const bool exists = m_file.exists();
    log("🔍 Checking for recovery file at: " + tempFileURL().string());
    log(std::string("   File exists: ") + (exists ? "true" : "false"));
    if (!exists)
        return false;
    const auto content = m_file.read();
    if (!content) {
        log("   ❌ Error reading recovery file: " + content.error().description);
        return false;
    }
    const auto root = RecoveryFile::parse(*content);
    if (!root) {
        log("   ❌ Failed to parse recovery file");
        return false;
    }
    std::vector<std::string> remarks; // the recovery logs them
    const StagedChanges staged = decodeStagedChanges(*root, m_store, m_fonts, remarks);
    log("   📊 Found in recovery file:");
    log("      - Icon changes: " + std::to_string(staged.pendingChanges.size()));
    log("      - Theme hides: " + std::to_string(staged.pendingThemeIconHides.size()));
    log("      - Pending font: " + staged.pendingFont.value_or("none"));
    log(std::string("      - Pending reset: ") + (staged.pendingReset ? "true" : "false"));
    log(staged.empty() ? "   ⚠️ Recovery file exists but has no changes" : "   ✅ Recoverable changes found!");
    return !staged.empty();
}

bool PendingChangesManager::recover() {
    assertOnMainThread("Recovering changes");
    const auto root = m_file.load();
    if (!root && root.error().code == ENOENT) {
        // A record without the file that it belongs to is what a kill left of an apply or a discard that was
        // at its end.
        m_transfer.end();
        m_isFileOurs = true;
        sweep();
        return false;
    }

    log("♻️ Recovering changes from temp file...");
    const auto failed = [this](const Error& error) {
        log("Failed to load pending changes from temp file: " + error.description);
        m_recoveryFailed = true;
        m_isFileOurs = false;
        return false;
    };
    if (!root)
        return failed(root.error());

    std::vector<std::string> remarks;
    StagedChanges recovered = decodeStagedChanges(*root, m_store, m_fonts, remarks);
    for (const std::string& remark : remarks)
        log(remark);

    m_applied.forget();
    const auto interrupted = m_transfer.recorded();
    if (!interrupted)
        return failed(interrupted.error());
    bool isComplete = true;
    for (const auto& [bundleID, shown] : *interrupted) {
        recovered.markedForDeletion.erase(bundleID);
        const auto change = recovered.pendingChanges.find(bundleID);
        if (change == recovered.pendingChanges.end())
            continue;
        recovered.unfinished.insert(bundleID);
        const auto found = followTransfer(bundleID, shown, change->second);
        if (!found)
            return failed(found.error());
        isComplete = isComplete && *found;
    }

    if (const Status checked = recoverRows(recovered); !checked)
        return failed(checked.error());

    m_staged = std::move(recovered);
    m_recoveryFailed = false;
    m_isFileOurs = true;
    m_interruptedTransfer = Transfer::followed;
    const bool saved = updatePendingChangesState();
    if (saved && isComplete)
        sweep();
    return true;
}

bool PendingChangesManager::restage(const StagedChanges& changes) {
    assertOnMainThread("Restaging changes");
    StagedChanges restaged = changes;
    restaged.unfinished = m_staged.unfinished;
    if (const Status checked = recoverRows(restaged); !checked) {
        log("⚠️ Could not restage the changes: " + checked.error().description);
        return false;
    }
    m_staged = std::move(restaged);
    updatePendingChangesState();
    return true;
}

Status PendingChangesManager::recoverRows(StagedChanges& recovered) const {
    std::set<std::string> bundleIDs;
    for (const auto& [bundleID, change] : recovered.pendingChanges)
        bundleIDs.insert(bundleID);
    for (const auto& [bundleID, marked] : recovered.markedForDeletion)
        bundleIDs.insert(bundleID);
    for (const std::string& bundleID : bundleIDs) {
        if (const Status checked = recoverRow(bundleID, recovered); !checked)
            return checked;
    }
    return Done{};
}

/// Puts the places where an interrupted transfer's icons stand now in the stead of those that were staged. True
/// when it found all.
Result<bool> PendingChangesManager::followTransfer(const std::string& bundleID,
                                                   const std::vector<MacPath>& shown, IconChange& change) {
    // Otherwise an earlier recovery has already written the new places.
    const bool namesOldPlaces = change.iconPaths == shown;
    const IconTransfer::Places places = m_transfer.run(bundleID);
    if (!namesOldPlaces)
        return true;
    const std::size_t count = change.iconPaths.size();
    if (places.size() != count)
        return Error{"The icons of " + bundleID + " cannot be found"};

    IconChange moved;
    for (std::size_t place = 0; place < count; ++place) {
        if (!places[place]) {
            log("⚠️ Warning: Pending icon missing at " + change.iconPaths[place].string());
            continue;
        }
        if (change.selectedIndex == static_cast<int>(place))
            moved.selectedIndex = static_cast<int>(moved.iconPaths.size());
        moved.iconPaths.push_back(*places[place]);
    }
    if (change.selectedIndex && *change.selectedIndex >= static_cast<int>(count))
        moved.selectedIndex = selectionIn(moved.iconPaths, change);
    change = std::move(moved);
    return change.iconPaths.size() == count;
}

/// Brings what was read about an application's icons to what is on disk, and touches nothing there. An error
/// when the disk does not tell.
Status PendingChangesManager::recoverRow(const std::string& bundleID, StagedChanges& recovered) const {
    const AppliedIcons::State applied = m_applied.look(bundleID);
    IconRow row{.permanentIconPaths = applied.permanentIconPaths};
    const auto entry = recovered.pendingChanges.find(bundleID);
    const bool hasEntry = entry != recovered.pendingChanges.end();
    const IconChange change = hasEntry ? entry->second : IconChange();

    std::set<std::optional<int>> shown;
    for (const MacPath& path : change.iconPaths) {
        const auto isThere = isPlainFile(m_files, path, m_settings.appSupportURL());
        if (!isThere)
            return isThere.error();
        const bool isPending = isPendingIconOf(path, bundleID);
        const bool isListed = std::ranges::find(row.permanentIconPaths, path) != row.permanentIconPaths.end();
        if (*isThere && !isPending && row.permanentIconPaths.empty())
            return Error{"The icons of " + bundleID + " cannot be listed"};
        if (!*isThere || (!isPending && !isListed))
            log((isPending ? "⚠️ Warning: Pending icon missing at " : "⚠️ Warning: Permanent icon missing at ") +
                path.string());
        else if (isPending)
            row.pendingAdditionPaths.push_back(path);
        else
            shown.insert(iconIndex(path.name()));
    }

    // An icon that is both shown and removed is not one that anybody may delete.
    const auto marked = recovered.markedForDeletion.find(bundleID);
    if (marked != recovered.markedForDeletion.end()) {
        const std::set<int> numbers = applied.numbers();
        for (const int index : marked->second) {
            if (numbers.contains(index) && !shown.contains(index))
                row.hiddenPermanentIndices.insert(index);
            else
                log("⚠️ Warning: Invalid hidden index " + std::to_string(index));
        }
        if (row.hiddenPermanentIndices.empty())
            recovered.markedForDeletion.erase(marked);
        else
            marked->second = row.hiddenPermanentIndices;
    }

    const auto display = row.displayPaths();
    const auto selected = hasEntry ? selectionIn(display, change) : applied.placeIn(display);
    if (change.selectedIndex && !selected)
        log("⚠️ Warning: Selected index " + std::to_string(*change.selectedIndex) + " out of bounds for " +
            bundleID + ", resetting to -1");
    if (!hasEntry && row.hiddenPermanentIndices.empty())
        return Done{};
    recovered.pendingChanges.insert_or_assign(bundleID, IconChange{display, selected});
    log("   " + bundleID + ": " + std::to_string(display.size()) +
        " icons, selected: " + (selected ? std::to_string(*selected) : "none"));
    return Done{};
}

void PendingChangesManager::dropIcons(const std::set<MacPath>& icons) {
    assertOnMainThread("Dropping icons");
    std::set<MacPath> dropped;
    for (const MacPath& icon : icons) {
        if (isPendingIconPath(icon) && m_files.exists(icon))
            dropped.insert(icon);
    }
    for (const auto& [bundleID, change] : m_staged.pendingChanges) {
        for (const MacPath& icon : change.iconPaths)
            dropped.erase(icon);
    }
    for (const MacPath& icon : dropped)
        m_store.deletePendingIcon(icon);
}

/// What nothing names was left by a kill, unless a file that was put aside names it.
void PendingChangesManager::sweep() {
    if (m_file.hasOnePutAside())
        return;
    std::set<MacPath> named;
    for (const auto& [bundleID, change] : m_staged.pendingChanges)
        named.insert(change.iconPaths.begin(), change.iconPaths.end());
    m_store.removeUnnamedPendingIcons(named);
}

} // namespace tavrik
