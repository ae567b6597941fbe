#pragma once

#include "ui/models/UiServices.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tavrik {

/// The backups, in the settings window. Main thread.
class BackupsPage : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")

public:
    explicit BackupsPage(const UiServices& with);

private:
    const UiServices m_with;
};

} // namespace tavrik
