#pragma once

#include "ui/models/UiServices.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tavrik {

/// Undo and redo of what was staged. Main thread.
class EditActions : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(bool canUndo READ canUndo NOTIFY changed)
    Q_PROPERTY(bool canRedo READ canRedo NOTIFY changed)

public:
    explicit EditActions(const UiServices& with);

    bool canUndo() const { return false; }

    bool canRedo() const { return false; }

    Q_INVOKABLE void undo() {}

    Q_INVOKABLE void redo() {}

Q_SIGNALS:
    void changed();

private:
    const UiServices m_with;
};

} // namespace tavrik
