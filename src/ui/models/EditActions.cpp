#include "ui/models/EditActions.h"

#include "app/AppDelegate.h"
#include "app/Managers.h"
#include "ui/models/Notices.h"

namespace tavrik {

EditActions::EditActions(const UiServices& with)
    : m_with(with),
      m_history(with.managers.pendingChanges, with.managers.notificationCenter) {
    m_history.setObserver([this] { Q_EMIT changed(); });
}

bool EditActions::canUndo() const {
    return m_history.canUndo() && !m_with.delegate.isBlocked();
}

bool EditActions::canRedo() const {
    return m_history.canRedo() && !m_with.delegate.isBlocked();
}

QString EditActions::undoText() const {
    if (!m_history.canUndo())
        return tr("Undo");
    switch (m_history.undoKind()) {
    case EditHistory::Kind::icons:
        return tr("Undo Icon Change");
    case EditHistory::Kind::themes:
        return tr("Undo Theme Change");
    case EditHistory::Kind::titles:
        return tr("Undo Font Change");
    case EditHistory::Kind::several:
        return tr("Undo Changes");
    }
    return tr("Undo");
}

QString EditActions::redoText() const {
    if (!m_history.canRedo())
        return tr("Redo");
    switch (m_history.redoKind()) {
    case EditHistory::Kind::icons:
        return tr("Redo Icon Change");
    case EditHistory::Kind::themes:
        return tr("Redo Theme Change");
    case EditHistory::Kind::titles:
        return tr("Redo Font Change");
    case EditHistory::Kind::several:
        return tr("Redo Changes");
    }
    return tr("Redo");
}

void EditActions::undo() {
    if (canUndo() && !m_history.undo())
        m_with.notices.refuse(tr("This step cannot be undone now: the disk does not answer. Try again."));
}

void EditActions::redo() {
    if (canRedo() && !m_history.redo())
        m_with.notices.refuse(tr("This step cannot be made again now: the disk does not answer. Try again."));
}

void EditActions::discard() {
    if (m_with.delegate.isBlocked() || !m_with.managers.pendingChanges.hasPendingChanges())
        return;
    // What an interrupted apply left is put back by its own way, which no step leads back from.
    if (!m_with.managers.pendingChanges.staged().unfinished.empty()) {
        m_with.delegate.discardChanges();
        return;
    }
    if (m_history.discard())
        m_with.notices.tell(tr("Discarded. Undo brings everything back."));
    else
        m_with.notices.refuse(
            tr("What is staged cannot be discarded now: the disk does not answer. Try again."));
}

} // namespace tavrik
