#pragma once

#include "changes/EditHistory.h"
#include "ui/models/UiServices.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace tavrik {

/// Undo and redo of what was staged, and the discard of all of it, which can be undone too. Main thread.
class EditActions : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(bool canUndo READ canUndo NOTIFY changed)
    Q_PROPERTY(bool canRedo READ canRedo NOTIFY changed)
    Q_PROPERTY(QString undoText READ undoText NOTIFY changed)
    Q_PROPERTY(QString redoText READ redoText NOTIFY changed)

public:
    explicit EditActions(const UiServices& with);

    bool canUndo() const;
    bool canRedo() const;
    /// "Undo Icon Change", as the menu says it.
    QString undoText() const;
    QString redoText() const;

    Q_INVOKABLE void undo();
    Q_INVOKABLE void redo();
    Q_INVOKABLE void discard();

    /// Of before is nothing to be taken back: when the recovered changes of an earlier session are in.
    void begin() { m_history.end(); }

Q_SIGNALS:
    void changed();

private:
    const UiServices m_with;
    EditHistory m_history;
};

} // namespace tavrik
