#pragma once

#include "changes/StagedChanges.h"
#include "platform/NotificationCenter.h"

#include <cstddef>
#include <functional>
#include <vector>

namespace tavrik {

class PendingChangesManager;

/// The steps by which the staged changes became what they are, and the way back and forth along them. Notes
/// each change by itself; one notification is one step. An apply, a restore, and whatever else drops what is
/// staged end the history.
///
/// Main thread. Lives in memory; the recovery file follows each step. While it lives, removed pictures stay on
/// disk; they are deleted when the history ends, or by the next start after a kill.
class EditHistory {
public:
    EditHistory(PendingChangesManager& pendingChanges, NotificationCenter& notifications);

    /// What a step changed.
    enum class Kind { icons, themes, titles, several };

    static constexpr std::size_t kMostSteps = 200;

    bool canUndo() const { return !m_undone.empty(); }

    bool canRedo() const { return !m_redone.empty(); }

    /// Of the step that `undo` takes back, or `redo` makes again. Only where there is one.
    Kind undoKind() const { return kindOf(m_undone.back(), m_current); }

    Kind redoKind() const { return kindOf(m_current, m_redone.back()); }

    /// False when there is nothing to take back or to make again, or the disk does not let it.
    bool undo();
    bool redo();

    /// Takes back all that is staged, as one step. Posts "ReloadApplicationsAfterDiscard".
    bool discard();

    /// Forgets all steps. What is staged stays.
    void end();

    /// Hears when what can be undone or redone has changed.
    void setObserver(std::function<void()> observer) { m_observer = std::move(observer); }

private:
    static Kind kindOf(const StagedChanges& before, const StagedChanges& after);

    void note();
    bool go(std::vector<StagedChanges>& from, std::vector<StagedChanges>& to);
    void tell() const;

    PendingChangesManager& m_pendingChanges;
    NotificationCenter& m_notifications;
    StagedChanges m_current;
    std::vector<StagedChanges> m_undone; ///< what was staged before, the last at the end
    std::vector<StagedChanges> m_redone;
    bool m_isGoing = false;
    std::function<void()> m_observer;
    std::vector<NotificationCenter::Observation> m_observations;
};

} // namespace tavrik
