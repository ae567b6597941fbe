#pragma once

#include "ui/models/UiServices.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tavrik {

/// Small preferences, in the settings window. Main thread.
class PreferencesPage : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")

public:
    explicit PreferencesPage(const UiServices& with);

private:
    const UiServices m_with;
};

} // namespace tavrik
