#pragma once

#include "ui/models/UiServices.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tavrik {

/// The place for applications: both lists, their filters, and what is done with a row. Main thread.
class ApplicationsPage : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")

public:
    explicit ApplicationsPage(const UiServices& with);

private:
    const UiServices m_with;
};

} // namespace tavrik
