#pragma once

#include "ui/models/UiServices.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tavrik {

/// Launchpad and the Dock as they are and as they would be with what is staged. Main thread.
class PreviewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")

public:
    explicit PreviewModel(const UiServices& with);

private:
    const UiServices m_with;
};

} // namespace tavrik
