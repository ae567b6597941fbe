#pragma once

#include "ui/models/UiServices.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tavrik {

/// The health check, in the settings window. Main thread.
class HealthPage : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")

public:
    explicit HealthPage(const UiServices& with);

private:
    const UiServices m_with;
};

} // namespace tavrik
