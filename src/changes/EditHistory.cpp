#include "changes/EditHistory.h"

#include "changes/PendingChangesManager.h"
#include "changes/ReloadNotifications.h"

#include <set>
#include <utility>

namespace tavrik {

EditHistory::EditHistory(PendingChangesManager& pendingChanges, NotificationCenter& notifications)
    : m_pendingChanges(pendingChanges),
      m_notifications(notifications),
      m_current(pendingChanges.staged()) {
    pendingChanges.keepRemovedIcons();
    m_observations.push_back(notifications.observe(std::string(kPendingChangesUpdated), [this] { note(); }));
    for (const std::string_view name : {kReloadApplicationsAfterApply, kReloadApplicationsAfterDiscard,
                                        kReloadApplicationsAfterBackupRestore}) {
        m_observations.push_back(notifications.observe(std::string(name), [this] {
            if (!m_isGoing)
                end();
        }));
    }
}

void EditHistory::note() {
    if (m_isGoing || m_pendingChanges.staged() == m_current)
        return;
    m_undone.push_back(std::exchange(m_current, m_pendingChanges.staged()));
    if (m_undone.size() > kMostSteps)
        m_undone.erase(m_undone.begin());
    m_redone.clear();
    tell();
}

bool EditHistory::undo() {
    return go(m_undone, m_redone);
}

bool EditHistory::redo() {
    return go(m_redone, m_undone);
}

bool EditHistory::go(std::vector<StagedChanges>& from, std::vector<StagedChanges>& to) {
    if (from.empty())
        return false;
    m_isGoing = true;
    const bool went = m_pendingChanges.restage(from.back());
    m_isGoing = false;
    if (!went)
        return false;
    from.pop_back();
    to.push_back(std::exchange(m_current, m_pendingChanges.staged()));
    tell();
    return true;
}

bool EditHistory::discard() {
    m_isGoing = true;
    const bool discarded = m_pendingChanges.restage({});
    if (discarded)
        m_notifications.post(kReloadApplicationsAfterDiscard);
    m_isGoing = false;
    note();
    return discarded;
}

void EditHistory::end() {
    std::set<MacPath> icons;
    for (const auto* const states : {&m_undone, &m_redone}) {
        for (const StagedChanges& state : *states) {
            for (const auto& [bundleID, change] : state.pendingChanges)
                icons.insert(change.iconPaths.begin(), change.iconPaths.end());
        }
    }
    m_undone.clear();
    m_redone.clear();
    m_current = m_pendingChanges.staged();
    m_pendingChanges.dropIcons(icons);
    tell();
}

EditHistory::Kind EditHistory::kindOf(const StagedChanges& before, const StagedChanges& after) {
    const bool icons =
        before.pendingChanges != after.pendingChanges || before.markedForDeletion != after.markedForDeletion;
    const bool themes = before.pendingThemeIconHides != after.pendingThemeIconHides ||
                        before.pendingThemeIconDeletions != after.pendingThemeIconDeletions ||
                        before.pendingThemeDeletions != after.pendingThemeDeletions;
    const bool titles = before.pendingFont != after.pendingFont || before.pendingReset != after.pendingReset;
    if (icons + themes + titles != 1)
        return Kind::several;
    return icons ? Kind::icons : themes ? Kind::themes : Kind::titles;
}

void EditHistory::tell() const {
    if (m_observer)
        m_observer();
}

} // namespace tavrik
