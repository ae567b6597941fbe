#include "changes/PendingChangesManager.h"
#include "changes/StagedChangesCoding.h"
#include "icons/IconStore.h"
#include "icons/IconTransfer.h"
#include "model/SettingsManager.h"
#include "platform/Clock.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/NotificationCenter.h"
#include "platform/Threads.h"

#include <cerrno>

namespace tavrik {

namespace {

const char* text(bool flag) {
    return flag ? "true" : "false";
}

} // namespace

bool PendingChangesManager::updatePendingChangesState() {
    updateFlags();
    const bool saved = savePendingChangesToTempFile();
    m_notifications.post(kPendingChangesUpdated);
    return saved;
}

void PendingChangesManager::updateFlags() {
    m_hasPendingChanges = !m_staged.empty();
    log(std::string("📝 Updating pending changes state: ") + text(m_hasPendingChanges));
    log("   - Icon changes: " + std::to_string(m_staged.pendingChanges.size()));
    log("   - Theme hides: " + std::to_string(m_staged.pendingThemeIconHides.size()));
}

bool PendingChangesManager::savePendingChangesToTempFile() {
    assertOnMainThread("Saving the recovery file");
    if (m_isInitializing)
        return false;
    log("📝 savePendingChangesToTempFile called");
    log("   Pending changes count: " + std::to_string(m_staged.pendingChanges.size()));
    log(std::string("   Has pending font: ") + text(m_staged.pendingFont.has_value()));
    log(std::string("   Has pending reset: ") + text(m_staged.pendingReset));
    if (!takeOverFile())
        return false;

    bool saved = false;
    if (m_staged.empty()) {
        log("   Nothing to save, deleting temp file");
        const Status removed = m_file.remove();
        saved = bool(removed);
        if (!saved)
            log("   ❌ Failed to delete file: " + removed.error().description);
    } else {
        saved = m_file.write(encodeStagedChanges(m_staged, m_clock.now()));
    }
    if (saved)
        finishTransfer();
    return saved;
}

/// Once the file on disk does not name the places of before an interrupted transfer.
void PendingChangesManager::finishTransfer() {
    if (m_interruptedTransfer == Transfer::none)
        return;
    // The staged changes stand and may still be given up, so the icon in use must be the one of before.
    if (m_interruptedTransfer == Transfer::followed) {
        m_transfer.abandon();
        m_applied.forget();
    }
    m_transfer.end();
    m_interruptedTransfer = Transfer::none;
}

/// Before the first write over a file of an earlier session. One that was not taken in is given up only when it
/// could have been; the transfer that belonged to it is given up in either case.
bool PendingChangesManager::takeOverFile() {
    if (m_isFileOurs)
        return true;
    const auto root = m_file.load();
    const bool isAbsent = !root && root.error().code == ENOENT;
    if (!isAbsent && !m_transfer.interrupted().empty())
        m_transfer.abandon();
    if (!isAbsent && (!root || m_recoveryFailed)) {
        if (const Status moved = m_file.putAside(); !moved) {
            log("   ❌ Failed to write file: " + moved.error().description);
            return false;
        }
    }
    m_interruptedTransfer = Transfer::over;
    m_isFileOurs = true;
    return true;
}

void PendingChangesManager::noteApplied() {
    assertOnMainThread("Noting an apply");
    m_applied.forget();
    readActiveFont();

    StagedChanges left;
    for (const auto& [bundleID, change] : m_staged.pendingChanges) {
        const AppliedIcons::State applied = m_applied.look(bundleID);
        IconChange rest{.iconPaths = applied.permanentIconPaths};
        for (const MacPath& path : change.iconPaths) {
            const auto present = m_files.attributes(path, Links::dontFollow);
            if (isPendingIconOf(path, bundleID) && (present || present.error().code != ENOENT))
                rest.iconPaths.push_back(path);
        }
        if (rest.iconPaths.size() == applied.permanentIconPaths.size())
            continue;
        rest.selectedIndex = selectionIn(rest.iconPaths, change);
        if (!rest.selectedIndex || *rest.selectedIndex < static_cast<int>(applied.permanentIconPaths.size()))
            rest.selectedIndex = applied.placeIn(rest.iconPaths);
        left.pendingChanges.emplace(bundleID, std::move(rest));
    }
    if (left.empty()) {
        clear(PendingIcons::keep);
        return;
    }
    m_staged = std::move(left);
    m_interruptedTransfer = Transfer::over;
    updatePendingChangesState();
}

void PendingChangesManager::clearAllPendingChanges() {
    assertOnMainThread("Clearing the pending changes");
    // First, while the file still says what is given up: a kill after this leaves it to be recovered.
    if (!m_transfer.interrupted().empty())
        m_transfer.abandon();
    m_applied.forget();
    clear(PendingIcons::cleanUp);
}

void PendingChangesManager::noteRestored() {
    assertOnMainThread("Noting a restore");
    m_applied.forget();
    readActiveFont();
    m_notifications.post(kPendingChangesUpdated);
}

void PendingChangesManager::readActiveFont() {
    const auto font = m_settings.getCurrentFontState();
    m_activeFont = font ? std::optional(font->fontName) : std::nullopt;
}

void PendingChangesManager::clear(PendingIcons icons) {
    m_staged = {};
    m_interruptedTransfer = Transfer::over;
    const bool isOurs = takeOverFile();
    const Status removed = isOurs ? m_file.remove() : Status(Error{"The recovery file was left alone"});
    if (removed) {
        if (icons == PendingIcons::cleanUp)
            m_store.cleanUpAllPendingIcons();
        finishTransfer();
        log("🧹 Cleared pending changes");
    } else {
        log("⚠️ Could not clear pending changes: " + removed.error().description);
    }
    updateFlags();
    m_notifications.post(kPendingChangesUpdated);
}

} // namespace tavrik
