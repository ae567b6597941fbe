#pragma once

#include "ui/models/UiServices.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tavrik {

/// The removal of everything, in the settings window. Main thread.
class LeavingPage : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")

public:
    explicit LeavingPage(const UiServices& with);

private:
    const UiServices m_with;
};

} // namespace tavrik
